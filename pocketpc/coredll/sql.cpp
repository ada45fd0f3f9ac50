#include "pocketpc/coredll/sql.h"

#include <sqlite3.h>

DWORD ErrorOf(sqlite3* connection) {
    switch (sqlite3_errcode(connection) & 0xFF) {
        case SQLITE_OK:
        case SQLITE_ROW:
        case SQLITE_DONE: return ERROR_SUCCESS;
        case SQLITE_BUSY:
        case SQLITE_LOCKED: return ERROR_SHARING_VIOLATION;
        case SQLITE_NOMEM: return ERROR_NOT_ENOUGH_MEMORY;
        case SQLITE_FULL: return ERROR_DISK_FULL;
        case SQLITE_CANTOPEN: return ERROR_FILE_NOT_FOUND;
        case SQLITE_READONLY:
        case SQLITE_PERM: return ERROR_ACCESS_DENIED;
        case SQLITE_CONSTRAINT: return ERROR_ALREADY_EXISTS;
    }
    return ERROR_FILE_CORRUPT;
}

void Statement::Finalize::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

Statement::Statement(sqlite3* connection, const char* sql) : connection_(connection) {
    sqlite3_stmt* statement = nullptr;
    Check(sqlite3_prepare_v2(connection, sql, -1, &statement, nullptr));
    statement_.reset(statement);
}

void Statement::Check(int code) {
    if (code == SQLITE_OK) return;
    failed_ = true;
    SetLastError(ErrorOf(connection_));
}

Statement& Statement::Bind(long long value) {
    Check(sqlite3_bind_int64(statement_.get(), ++bound_, value));
    return *this;
}

Statement& Statement::Bind(std::wstring_view text) {
    Check(sqlite3_bind_text16(statement_.get(), ++bound_, text.data(),
                              static_cast<int>(text.size() * sizeof(wchar_t)), SQLITE_TRANSIENT));
    return *this;
}

Statement& Statement::BindBytes(std::string_view bytes) {
    // A null pointer would bind a null, which an empty value is not.
    Check(sqlite3_bind_blob(statement_.get(), ++bound_, bytes.empty() ? "" : bytes.data(),
                            static_cast<int>(bytes.size()), SQLITE_TRANSIENT));
    return *this;
}

bool Statement::Step() {
    if (failed_) return false;
    const int code = sqlite3_step(statement_.get());
    if (code == SQLITE_ROW) return true;
    if (code != SQLITE_DONE) Check(code);
    return false;
}

bool Statement::Run() {
    while (Step()) {
    }
    return !failed_;
}

void Statement::Reset() {
    sqlite3_reset(statement_.get());
    bound_ = 0;
}

long long Statement::Number(int column) const {
    return sqlite3_column_int64(statement_.get(), column);
}

std::wstring Statement::Text(int column) const {
    const void* text = sqlite3_column_text16(statement_.get(), column);
    const int bytes = sqlite3_column_bytes16(statement_.get(), column);
    return text ? std::wstring(static_cast<const wchar_t*>(text), bytes / sizeof(wchar_t))
                : std::wstring();
}

std::string Statement::Bytes(int column) const {
    const void* bytes = sqlite3_column_blob(statement_.get(), column);
    const int size = sqlite3_column_bytes(statement_.get(), column);
    return bytes ? std::string(static_cast<const char*>(bytes), size) : std::string();
}

Transaction::Transaction(sqlite3* connection)
    : connection_(connection), open_(Statement(connection, "begin immediate").Run()) {}

Transaction::~Transaction() {
    if (!open_) return;
    const DWORD error = GetLastError();
    Statement(connection_, "rollback").Run();
    SetLastError(error);
}

bool Transaction::Commit() {
    if (!open_ || !Statement(connection_, "commit").Run()) return false;
    open_ = false;
    return true;
}
