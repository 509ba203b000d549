// How a page for printing comes onto the disk: line by line out of the lines of a template, in the character
// set of the files.
#pragma once

#include "platform/Formats.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

// Takes the next line of a page, without its end.
using AddLine = std::function<void(std::string_view)>;

// Gives the lines of a page from the bytes of its template.
using PageLines = std::function<void(std::string_view templateText, const AddLine& add)>;

// Writes the page in place of what the path held, each line ended by CR LF. The page's file is made before
// the template is read, so a missing template leaves an empty page. Raises the run-time error where the page
// cannot be written or the template cannot be read; what was written by then stays.
void WritePage(const std::filesystem::path& page, const std::filesystem::path& templateFile,
               const PageLines& lines);

// The text in the character set of the files; a character that the set lacks becomes a reference: "&#322;".
std::string PageText(const ScreenText& text);

// "Created on " and today in the form "Long Date".
std::string CreatedOn();

// A date in the form "Medium Date".
std::string PageDate(Date date);

// Replaces each place of the text that stood there before; what is put in is not looked at.
void ReplaceEach(std::string& line, std::string_view from, std::string_view to);

// Replaces the first place alone; false where there is none.
bool ReplaceFirst(std::string& line, std::string_view from, std::string_view to);
