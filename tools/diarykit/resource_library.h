#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

// A resource of a library such as DiaryRes.Dll, by the numbers of its type and of itself.
struct LibraryResource {
    std::uint32_t type, id;
    std::span<const std::uint8_t> bytes;  // within those of the library
};

inline constexpr std::uint32_t kMenuType = 4, kDialogType = 5, kStringType = 6,
                               kDialogInitType = 240;

// The resources with numbers, of each its first language; none for bytes that are no such library.
std::optional<std::vector<LibraryResource>> ReadResources(std::span<const std::uint8_t> library);

// A text of a string table's block, and its id.
struct LibraryString {
    std::uint32_t id;
    std::wstring text;
};
std::vector<LibraryString> StringsOf(const LibraryResource& block);

// The texts of a menu, those of its submenus too.
std::vector<std::wstring> MenuTextsOf(std::span<const std::uint8_t> menu);
