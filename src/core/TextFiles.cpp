// The files of the data folder as bytes and lines: each is read whole and written whole.
#include "core/TextFiles.h"

#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "platform/CharacterSet.h"
#include "platform/Process.h"

#include <array>
#include <cstdint>
#include <system_error>
#include <utility>

namespace {

constexpr const char* WritingFailed = "File cannot be written";

OutputFile OpenOutput(const std::string& name, const char* mode) {
    OutputFile file(std::fopen(name.c_str(), mode));
    if (!file) {
        throw RunTimeError("File cannot be opened for writing", name);
    }
    return file;
}

} // namespace

void ChangeToDataFolder() {
    std::error_code error;
    std::filesystem::current_path(DataFolder, error);
    if (error) {
        throw RunTimeError("Folder cannot be entered", PathText(DataFolder));
    }
}

std::string PathText(const std::filesystem::path& path) {
    try {
        return StoreText(path.u16string());
    } catch (const std::filesystem::filesystem_error&) {
        return path.string(); // its bytes are no UTF-8
    }
}

std::string FileBytes(const std::string& name) {
    const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(name.c_str(), "rb"));
    if (!file) {
        throw RunTimeError("File cannot be opened", name);
    }
    std::string bytes;
    std::error_code unknown; // a size that is not told costs time alone
    if (const std::uintmax_t size = std::filesystem::file_size(name, unknown); !unknown) {
        bytes.reserve(size);
    }
    std::array<char, 65536> block{};
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), file.get())) {
        bytes.append(block.data(), count);
    }
    if (std::ferror(file.get()) != 0) {
        throw RunTimeError("File cannot be read", name);
    }
    return bytes;
}

std::optional<std::string_view> TakeLine(std::string_view& text) {
    if (text.empty()) {
        return std::nullopt;
    }
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (end == std::string_view::npos) {
        text.remove_prefix(text.size());
        return line;
    }
    text.remove_prefix(end + 1);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

std::vector<std::size_t> PlacesOfBlanks(std::string_view text, std::string_view closingTag) {
    std::vector<std::size_t> places;
    for (std::size_t at = text.rfind(closingTag); at != std::string_view::npos;
         at = at == 0 ? std::string_view::npos : text.rfind(closingTag, at - 1)) {
        const std::size_t behind = at + closingTag.size();
        const std::string_view rest = text.substr(behind);
        if (rest.starts_with('\n') || rest.starts_with(LineEnd)) {
            places.push_back(behind);
        }
    }
    return places;
}

OutputFile OpenForWriting(const std::string& name) {
    return OpenOutput(name, "wb");
}

void WriteBytes(OutputFile& file, std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) {
        throw RunTimeError(WritingFailed);
    }
}

void CloseFile(OutputFile file) {
    if (std::fclose(file.release()) != 0) {
        throw RunTimeError(WritingFailed);
    }
}

void SyncAndClose(OutputFile file) {
    const bool synced = SyncToDevice(file.get());
    CloseFile(std::move(file));
    if (!synced) {
        throw RunTimeError(WritingFailed);
    }
}

void MakeFile(const std::string& name, const std::function<void(OutputFile&)>& write) {
    OutputFile file = OpenOutput(name, "wbx");
    try {
        write(file);
        SyncAndClose(std::move(file));
    } catch (const RunTimeError&) {
        std::error_code ignored;
        std::filesystem::remove(name, ignored);
        throw;
    }
}

void CopyToNewFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    const std::string bytes = FileBytes(from.string());
    MakeFile(to.string(), [&bytes](OutputFile& file) { WriteBytes(file, bytes); });
}
