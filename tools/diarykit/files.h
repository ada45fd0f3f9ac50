#pragma once

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// A command that cannot be carried out as it was given; it ends with kWrongUse.
struct UseError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

bool IsFile(const std::string& path);
bool IsFolder(const std::string& path);
std::string InFolder(const std::string& folder, const std::string& name);
// The paths of a folder's bitmap files, sorted; hidden ones, which begin with a dot, do not count.
std::vector<std::string> BitmapsIn(const std::string& folder);
// The path of a file in the folder of another one.
std::string BesideFile(const std::string& path, const std::string& name);

// All bytes of a file; throws a UseError that names it when it cannot be read.
std::vector<std::uint8_t> ReadInput(const std::string& path);

// Writes a file, or the standard output for an empty path; throws likewise.
void WriteOutput(const std::string& path, std::span<const std::uint8_t> bytes);

// A text as a file of UTF-16 with its byte-order mark, as the program and the desktop have them.
std::vector<std::uint8_t> Utf16File(std::wstring_view text);
