#pragma once

#include <windows.h>

#include <string>
#include <vector>

// Opens "HKCU\..." or "HKLM\..." for the length of a scope.
class DeviceKey {
  public:
    DeviceKey(const std::wstring& path, bool create);
    ~DeviceKey();
    DeviceKey(const DeviceKey&) = delete;
    DeviceKey& operator=(const DeviceKey&) = delete;

    explicit operator bool() const { return key_ != nullptr; }
    bool Has(const std::wstring& name) const;
    // The types are "string", "dword" and "binary".
    bool Set(const std::wstring& name, const std::wstring& type, const std::wstring& data);
    bool Unset(const std::wstring& name);
    // A line for each sub-key and each value.
    std::vector<std::wstring> List() const;

  private:
    HKEY key_ = nullptr;
};

bool DeleteDeviceKey(const std::wstring& path);
