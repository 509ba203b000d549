// The texts by topic number in the program folder.
#include "drive/DriveLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <map>

namespace {

std::map<int, std::string> Topics() {
    std::map<int, std::string> topics;
    const std::string bytes = BytesOf(SampleDrive / "Planovarium/HelpTopics.txt");
    for (std::size_t start = 0; start < bytes.size();) {
        const std::size_t end = bytes.find("\r\n", start);
        EXPECT_NE(end, std::string::npos) << "each line ends with carriage return and line feed";
        const std::string line = bytes.substr(start, end - start);
        start = end == std::string::npos ? bytes.size() : end + 2;
        if (line.empty() || line.front() == '#') {
            continue;
        }
        int number = 0;
        const auto [rest, error] = std::from_chars(line.data(), line.data() + line.size(), number);
        EXPECT_EQ(error, std::errc()) << line;
        EXPECT_EQ(*rest, '\t') << line;
        EXPECT_TRUE(topics.emplace(number, std::string(rest + 1)).second) << number << " stands twice";
    }
    return topics;
}

struct TopicRange {
    int first;
    int last;
};

constexpr TopicRange Ranges[] = {{112, 115}, {153, 156}, {201, 223}, {301, 318}, {401, 406}, {501, 516},
                                 {601, 617}, {701, 721}, {801, 808}, {811, 814}, {821, 829}, {841, 844},
                                 {851, 852}, {861, 862}, {871, 876}, {881, 891}, {895, 895}};

TEST(HelpTopicsTest, EveryPartOfAWindowHasItsText) {
    const std::map<int, std::string> topics = Topics();
    std::size_t expected = 0;
    for (const TopicRange& range : Ranges) {
        for (int number = range.first; number <= range.last; ++number, ++expected) {
            EXPECT_TRUE(topics.contains(number)) << number;
        }
    }
    EXPECT_EQ(topics.size(), expected);
}

TEST(HelpTopicsTest, ATextIsTwoOrThreeSentencesOfPlainCharacters) {
    for (const auto& [number, text] : Topics()) {
        std::ptrdiff_t sentences = 1;
        for (std::size_t at = text.find(". "); at != std::string::npos; at = text.find(". ", at + 1)) {
            ++sentences;
        }
        EXPECT_GE(sentences, 2) << number << ": " << text;
        EXPECT_LE(sentences, 3) << number << ": " << text;
        EXPECT_EQ(text.back(), '.') << number << ": " << text;
        EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; }))
            << number;
    }
}

} // namespace
