// The files of the data folder as bytes and lines: each is read whole and written whole.
#pragma once

#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

inline constexpr std::string_view LineEnd = "\r\n";

// Makes the data folder the current one; from then on its files go by their bare names. Raises the run-time
// error when the folder cannot be entered.
void ChangeToDataFolder();

// The path in the store's character set, as messages show it.
std::string PathText(const std::filesystem::path& path);

// All bytes of the file; raises the run-time error when it cannot be opened or read.
std::string FileBytes(const std::string& name);

// Takes the first line off the text and gives it without its end, which is CR LF or a lone LF; a lone CR is a
// character like any other. A last line needs no end. Nothing when the text is used up.
std::optional<std::string_view> TakeLine(std::string_view& text);

// The places, the last one first, behind each line of a field's text that ends with the closing tag of the
// field where another line follows. A blank belongs there, since the reader takes such a line for the field's
// last.
std::vector<std::size_t> PlacesOfBlanks(std::string_view text, std::string_view closingTag);

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using OutputFile = std::unique_ptr<std::FILE, FileCloser>;

// Opens the file for writing and empties it; raises the run-time error when that fails.
OutputFile OpenForWriting(const std::string& name);

// Writes the bytes behind what was written before; raises the run-time error when that fails.
void WriteBytes(OutputFile& file, std::string_view bytes);

// Closes the file; raises the run-time error when what was written cannot be brought into it.
void CloseFile(OutputFile file);

// Hands all that was written to the device and closes the file; raises the run-time error when that fails.
void SyncAndClose(OutputFile file);

// Makes a file of what the procedure writes and hands it to the device; raises the run-time error when that
// fails, or when the name is taken. A file that is not whole is taken away again.
void MakeFile(const std::string& name, const std::function<void(OutputFile&)>& write);

// Copies the bytes of a file, and nothing else of it, to a name that is free, onto the device; raises the
// run-time error when that fails, and leaves no half copy.
void CopyToNewFile(const std::filesystem::path& from, const std::filesystem::path& to);
