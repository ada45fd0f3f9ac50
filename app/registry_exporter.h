#pragma once

#include <windows.h>

#include <cstdint>
#include <span>
#include <string>
#include <vector>

// Writes a registry key with everything below it into a settings file, and reads such a file back
// into the registry.
class RegistryExporter {
  public:
    // Values of this name, in upper or lower case, are left out of the file in every key.
    void Exclude(const wchar_t* valueName);

    // False when the key or file cannot be opened, a value is neither text, number nor bytes, or
    // writing fails; what was written of the file is then deleted.
    bool Export(const wchar_t* path, HKEY root, const wchar_t* keyPath) const;

    // Adds the file's values to the key that the file itself names. False when the file cannot be
    // read to its end; what was read until then has been stored.
    bool Import(const wchar_t* path) const;
    // The same of a file's bytes.
    bool Import(std::span<const std::uint8_t> file) const;

  private:
    std::vector<std::wstring> excluded_;
};
