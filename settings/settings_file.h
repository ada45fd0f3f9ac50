#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The settings file (".dias"): a registry key with everything below it, as a stream of records.
// Numbers have 32 bits, the least significant byte first. A text is the number of its bytes and its
// UTF-16LE units, without a terminator.
//
//   file   = kStart, root key number, path of the key, key, kEnd
//   key    = kKey, name (empty for the outermost), values, keys, kKeyEnd
//   value  = kValue, name, type, text | number | byte count and bytes
//
// Of a binary value without bytes the count is missing, too.

enum class SettingsTag : std::uint32_t { kStart = 0, kEnd = 1, kKey = 2, kKeyEnd = 3, kValue = 4 };

// The registry's numbers of the types that a settings file can hold.
enum class SettingsType : std::uint32_t { kText = 1, kBinary = 3, kNumber = 4 };

// Takes what a settings file holds, in its order. An answer of false ends the reading.
class SettingsSink {
  public:
    virtual ~SettingsSink() = default;
    // Opens the outermost key, which is made when missing.
    virtual bool OpenRoot(std::uint32_t root, const std::wstring& path) = 0;
    // Enters a key below the current one, which is made when missing; an empty name stays at the
    // current one. Each is left by LeaveKey.
    virtual bool EnterKey(const std::wstring& name) = 0;
    virtual void LeaveKey() = 0;
    virtual bool PutText(const std::wstring& name, const std::wstring& text) = 0;
    virtual bool PutNumber(const std::wstring& name, std::uint32_t number) = 0;
    virtual bool PutBinary(const std::wstring& name, std::span<const std::uint8_t> bytes) = 0;
};

// Looks the file through for its binary values without bytes, and then hands everything to the sink
// while it reads, so that what stands before a fault has been handed over. False for a file that
// ends early, an unknown type, tags that are not where they must be, or a sink that refuses. Takes
// no stack for nested keys, and memory in proportion to the file, whatever length a text claims.
bool ReadSettingsFile(std::span<const std::uint8_t> bytes, SettingsSink& sink);

// Writes the records into `bytes`, which its user may empty between two calls.
class SettingsFileWriter {
  public:
    void Begin(std::uint32_t root, std::wstring_view path);
    void End() { Put(SettingsTag::kEnd); }
    void BeginKey(std::wstring_view name);
    void EndKey() { Put(SettingsTag::kKeyEnd); }
    void Text(std::wstring_view name, std::wstring_view text);
    void Number(std::wstring_view name, std::uint32_t number);
    // Of no bytes not even their count is written; the format has always been so.
    void Binary(std::wstring_view name, std::span<const std::uint8_t> value);

    std::vector<std::uint8_t> bytes;

  private:
    void Put(SettingsTag tag) { PutNumber(static_cast<std::uint32_t>(tag)); }
    void PutNumber(std::uint32_t number);
    void PutText(std::wstring_view text);
    void BeginValue(std::wstring_view name, SettingsType type);
};
