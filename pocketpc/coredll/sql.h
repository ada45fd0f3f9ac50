#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

// The system's error number for what went wrong last on a connection.
DWORD ErrorOf(sqlite3* connection);

// One prepared statement. Parameters are bound in their order. What fails sets the last error.
class Statement {
  public:
    Statement(sqlite3* connection, const char* sql);

    Statement& Bind(long long value);
    Statement& Bind(std::wstring_view text);
    Statement& BindBytes(std::string_view bytes);

    // Whether there is another row. A failure ends the rows; see Failed().
    bool Step();
    bool Failed() const { return failed_; }
    // Runs to the end; for what has no rows.
    bool Run();
    // Makes it ready for new parameters.
    void Reset();

    long long Number(int column) const;
    std::wstring Text(int column) const;
    std::string Bytes(int column) const;

  private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    void Check(int code);

    sqlite3* connection_;
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
    int bound_ = 0;
    bool failed_ = false;
};

// Changes that are made together or not at all: without Commit they are taken back.
class Transaction {
  public:
    explicit Transaction(sqlite3* connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    // False when the file cannot be written now.
    bool IsOpen() const { return open_; }
    bool Commit();

  private:
    sqlite3* connection_;
    bool open_;
};
