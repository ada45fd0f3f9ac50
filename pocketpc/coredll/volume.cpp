#include "pocketpc/coredll/volume.h"

#include <sqlite3.h>

#include <cstring>

#include "pocketpc/coredll/device.h"

namespace {

constexpr int kApplication = 0x50504456;  // "PPDV", in the header of our files
constexpr int kLockTimeout = 5000;        // milliseconds

constexpr const char* kSchema[] = {
    "create table identifiers(next integer not null)",
    "insert into identifiers values(1)",
    "create table databases(oid integer primary key, name text not null, type integer not null,"
    " flags integer not null, modified integer not null, orders blob not null)",
    "create table records(oid integer primary key, parent integer not null)",
    "create index records_by_parent on records(parent)",
    "create table properties(record integer not null, id integer not null, value blob not null,"
    " primary key(record, id)) without rowid",
};

std::string Utf8(const std::wstring& text) {
    const int length =
        WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, nullptr, 0, nullptr, nullptr);
    std::string bytes(length, '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, bytes.data(), length, nullptr, nullptr);
    bytes.resize(length - 1);
    return bytes;
}

std::string BytesOf(const std::vector<SortOrder>& orders) {
    std::vector<DWORD> words;
    for (const SortOrder& order : orders) {
        words.push_back(order.keyFlags);
        words.push_back(static_cast<DWORD>(order.keys.size()));
        for (const SORTORDERSPEC& key : order.keys) {
            words.push_back(key.propid);
            words.push_back(key.dwFlags);
        }
    }
    return {reinterpret_cast<const char*>(words.data()), words.size() * sizeof(DWORD)};
}

std::vector<SortOrder> OrdersOf(const std::string& bytes) {
    std::vector<DWORD> words(bytes.size() / sizeof(DWORD));
    std::memcpy(words.data(), bytes.data(), words.size() * sizeof(DWORD));
    std::vector<SortOrder> orders;
    for (std::size_t i = 0; i + 2 <= words.size();) {
        SortOrder order;
        order.keyFlags = words[i++];
        for (DWORD keys = words[i++]; keys && i + 2 <= words.size(); --keys, i += 2) {
            order.keys.push_back({words[i], words[i + 1]});
        }
        if (!order.keys.empty()) orders.push_back(std::move(order));
    }
    return orders;
}

// A record's own identifier is documented to be a 128-bit GUID, which the union has as a blob. What
// its bytes are is the system's matter: ours differ in the last ones only, so that no part at the
// beginning will do, and are no other record's of the same volume.
std::string OwnIdentifier(CEOID record, bool isNumber) {
    std::string bytes(reinterpret_cast<const char*>(&record), sizeof record);
    return isNumber ? bytes : std::string("\xFE\x01\0\x5A Record \xFF", 12) + bytes;
}

long long Now() {
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    return static_cast<long long>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

}  // namespace

void Volume::Close::operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }

std::shared_ptr<Volume> Volume::Open(const std::wstring& path, DWORD disposition,
                                     const VolumeKind& kind) {
    if (disposition < CREATE_NEW || disposition > TRUNCATE_EXISTING) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    // The file system says what is wrong with the file, and makes it or empties it.
    SetLastError(ERROR_SUCCESS);
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                    nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    const DWORD error = GetLastError();
    if (file == INVALID_HANDLE_VALUE) {
        if (error == ERROR_FILE_EXISTS) SetLastError(ERROR_ALREADY_EXISTS);
        return nullptr;
    }
    CloseHandle(file);
    const bool create = disposition == CREATE_NEW || disposition == CREATE_ALWAYS ||
                        disposition == TRUNCATE_EXISTING ||
                        (disposition == OPEN_ALWAYS && error != ERROR_ALREADY_EXISTS);
    const auto volume = std::make_shared<Volume>();
    volume->kind_ = &kind;
    volume->path_ = path;
    volume->recordIdentifiersAreNumbers_ = RecordIdentifiersAreNumbers();
    if (!volume->Connect(create)) return nullptr;
    SetLastError(ERROR_SUCCESS);
    return volume;
}

bool Volume::Connect(bool create) {
    sqlite3* connection = nullptr;
    const int code =
        sqlite3_open_v2(Utf8(path_).c_str(), &connection, SQLITE_OPEN_READWRITE, nullptr);
    connection_.reset(connection);
    if (code != SQLITE_OK) {
        SetLastError(ErrorOf(connection));
        return false;
    }
    sqlite3_busy_timeout(connection, kLockTimeout);
    // A damaged file must not make SQLite run what it finds there.
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    if (create ? !MakeTables() : !IsVolume()) {
        if (!create && GetLastError() != ERROR_SHARING_VIOLATION) SetLastError(ERROR_ACCESS_DENIED);
        return false;
    }
    // A power failure may cost a stand-in its data; waiting for the disk would cost every test
    // time.
    return Prepare("pragma synchronous = off").Run();
}

bool Volume::MakeTables() {
    Transaction transaction(connection_.get());
    if (!transaction.IsOpen()) return false;
    for (const char* sql : kSchema) {
        if (!Prepare(sql).Run()) return false;
    }
    const std::string format = "pragma user_version=" + std::to_string(kind_->format);
    const std::string application = "pragma application_id=" + std::to_string(kApplication);
    return Prepare(format.c_str()).Run() && Prepare(application.c_str()).Run() &&
           transaction.Commit();
}

bool Volume::IsVolume() const {
    SetLastError(ERROR_SUCCESS);
    Statement application = Prepare("pragma application_id");
    Statement format = Prepare("pragma user_version");
    Statement check = Prepare("pragma quick_check(1)");
    return application.Step() && application.Number(0) == kApplication && format.Step() &&
           format.Number(0) == kind_->format && check.Step() && check.Text(0) == L"ok" &&
           !Prepare("select next from identifiers").Failed() &&
           !Prepare("select oid, name, type, flags, modified, orders from databases").Failed() &&
           !Prepare("select oid, parent from records").Failed() &&
           !Prepare("select record, id, value from properties").Failed();
}

std::pair<long long, long long> Volume::Version() const {
    Statement version = Prepare("pragma data_version");
    return {version.Step() ? version.Number(0) : 0, changes_};
}

CEOID Volume::NewIdentifier() {
    Statement take = Prepare("update identifiers set next = next + 1 returning next - 1");
    const CEOID identifier = take.Step() ? static_cast<CEOID>(take.Number(0)) : 0;
    return take.Run() ? identifier : 0;
}

std::vector<CEOID> Volume::Databases() const {
    std::vector<CEOID> databases;
    Statement all = Prepare("select oid from databases order by oid");
    while (all.Step()) databases.push_back(static_cast<CEOID>(all.Number(0)));
    return databases;
}

CEOID Volume::FindDatabase(const std::wstring& name) const {
    Statement all = Prepare("select oid, name from databases order by oid");
    while (all.Step()) {
        if (_wcsicmp(all.Text(1).c_str(), name.c_str()) == 0) {
            return static_cast<CEOID>(all.Number(0));
        }
    }
    if (!all.Failed()) SetLastError(ERROR_FILE_NOT_FOUND);
    return 0;
}

std::optional<DatabaseInfo> Volume::Info(CEOID database) const {
    Statement row =
        Prepare("select name, type, flags, modified, orders from databases where oid = ?");
    if (!row.Bind(database).Step()) {
        if (!row.Failed()) SetLastError(ERROR_FILE_NOT_FOUND);
        return std::nullopt;
    }
    DatabaseInfo info;
    info.name = row.Text(0);
    info.type = static_cast<DWORD>(row.Number(1));
    info.flags = static_cast<DWORD>(row.Number(2));
    info.modified = {static_cast<DWORD>(row.Number(3)), static_cast<DWORD>(row.Number(3) >> 32)};
    info.orders = OrdersOf(row.Bytes(4));
    Statement counts = Prepare(
        "select count(distinct oid), coalesce(sum(length(value)), 0) from records"
        " left join properties on record = oid where parent = ?");
    if (!counts.Bind(database).Step()) return std::nullopt;
    info.records = static_cast<DWORD>(counts.Number(0));
    info.size = static_cast<DWORD>(counts.Number(1));
    return info;
}

CEOID Volume::WriteInfo(CEOID database, const DatabaseInfo& info) {
    Transaction transaction(connection_.get());
    if (!transaction.IsOpen()) return 0;
    const CEOID same = FindDatabase(info.name);
    if (same && same != database) {
        SetLastError(ERROR_DUP_NAME);
        return 0;
    }
    if (!database) database = NewIdentifier();
    const long long modified =
        static_cast<long long>(info.modified.dwHighDateTime) << 32 | info.modified.dwLowDateTime;
    Statement write = Prepare("insert or replace into databases values(?, ?, ?, ?, ?, ?)");
    write.Bind(database).Bind(info.name).Bind(info.type).Bind(info.flags);
    write.Bind(modified ? modified : Now()).BindBytes(BytesOf(info.orders));
    if (!database || !write.Run() || !transaction.Commit()) return 0;
    ++changes_;
    return database;
}

bool Volume::DeleteDatabase(CEOID database) {
    Transaction transaction(connection_.get());
    if (!transaction.IsOpen()) return false;
    for (const char* sql :
         {"delete from properties where record in (select oid from records where parent = ?)",
          "delete from records where parent = ?", "delete from databases where oid = ?"}) {
        if (!Prepare(sql).Bind(database).Run()) return false;
    }
    ++changes_;
    return transaction.Commit();
}

std::optional<CEOID> Volume::ParentOf(CEOID record) const {
    Statement row = Prepare("select parent from records where oid = ?");
    if (row.Bind(record).Step()) return static_cast<CEOID>(row.Number(0));
    return std::nullopt;
}

std::vector<CEOID> Volume::Records(CEOID database) const {
    std::vector<CEOID> records;
    Statement all = Prepare("select oid from records where parent = ? order by oid");
    all.Bind(database);
    while (all.Step()) records.push_back(static_cast<CEOID>(all.Number(0)));
    return records;
}

std::map<CEOID, std::string> Volume::Column(CEOID database, CEPROPID property) const {
    std::map<CEOID, std::string> values;
    Statement all = Prepare(
        "select record, value from properties join records on oid = record"
        " where parent = ? and id = ?");
    all.Bind(database).Bind(property);
    while (all.Step()) values.emplace(static_cast<CEOID>(all.Number(0)), all.Bytes(1));
    return values;
}

Values Volume::Record(CEOID record) const {
    Values values;
    Statement all = Prepare("select id, value from properties where record = ?");
    all.Bind(record);
    while (all.Step()) {
        const auto id = static_cast<CEPROPID>(all.Number(0));
        const bool isOwn = TypeFromPropID(id) == CEVT_RECID;
        values[id] = isOwn ? OwnIdentifier(record, recordIdentifiersAreNumbers_) : all.Bytes(1);
    }
    return values;
}

bool Volume::Touch(CEOID database) {
    return Prepare("update databases set modified = ? where oid = ?")
        .Bind(Now())
        .Bind(database)
        .Run();
}

CEOID Volume::WriteRecord(CEOID database, CEOID record, const Values& values) {
    Transaction transaction(connection_.get());
    if (!transaction.IsOpen()) return 0;
    if (!record) {
        record = NewIdentifier();
        if (!record ||
            !Prepare("insert into records values(?, ?)").Bind(record).Bind(database).Run()) {
            return 0;
        }
    }
    for (const auto& [id, value] : values) {
        if (!value) {
            if (!Prepare("delete from properties where record = ? and id = ?")
                     .Bind(record)
                     .Bind(id)
                     .Run()) {
                return 0;
            }
            continue;
        }
        Statement write = Prepare("insert or replace into properties values(?, ?, ?)");
        if (!write.Bind(record).Bind(id).BindBytes(*value).Run()) return 0;
    }
    if (!Touch(database) || !transaction.Commit()) return 0;
    ++changes_;
    return record;
}

bool Volume::DeleteRecord(CEOID database, CEOID record) {
    Transaction transaction(connection_.get());
    if (!transaction.IsOpen() ||
        !Prepare("delete from properties where record = ?").Bind(record).Run() ||
        !Prepare("delete from records where oid = ?").Bind(record).Run() || !Touch(database) ||
        !transaction.Commit()) {
        return false;
    }
    ++changes_;
    return true;
}
