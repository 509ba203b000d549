// What the check tells: one fault of one file, with its place and what it would mean.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// All texts are in the store's character set. A number of 0 and an empty text say that there is none.
struct Finding {
    std::string file{};
    int line = 0;          // from 1 on
    int record = 0;        // its position among the file's records, from 1 on
    std::string name{};    // by which a student knows the record
    std::string field{};   // its tag, or a key of the preferences
    std::string fault{};   // what is wrong
    std::string meaning{}; // what the planner would make of it
};

using Findings = std::vector<Finding>;

// The count with its noun: "1 record", "3 records".
inline std::string Counted(std::int64_t count, std::string_view what) {
    return std::to_string(count).append(" ").append(what).append(count == 1 ? "" : "s");
}
