#pragma once

#include <windows.h>

#include <utility>

// Owns an open database. What opens one says INVALID_HANDLE_VALUE, not null, when it fails.
class DatabaseHandle {
  public:
    DatabaseHandle() = default;
    explicit DatabaseHandle(HANDLE handle) : handle_(handle) {}
    DatabaseHandle(DatabaseHandle&& other) noexcept
        : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
    DatabaseHandle& operator=(DatabaseHandle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~DatabaseHandle() {
        if (*this) CloseHandle(handle_);
    }

    HANDLE get() const { return handle_; }
    explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }

  private:
    HANDLE handle_ = INVALID_HANDLE_VALUE;
};
