// The stand-in device's databases, as programs see them: on a newer device and on an older one.
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>

#include "tests/model/databases.h"
#include "tests/model/devicectl.h"
#include "tests/windows.h"

namespace {

TEST(Volumes, AreRefusedWithTheFilesOwnError) {
    CEGUID guid;
    ASSERT_TRUE(Mount(kVolume, CREATE_NEW | kKind, guid));
    ASSERT_TRUE(CeUnmountDBVol(&guid));
    std::string whole;
    {
        std::ifstream file("\\test.vol", std::ios::binary);
        whole.assign(std::istreambuf_iterator(file), {});
    }
    std::string otherKind = whole;
    ASSERT_GT(whole.size(), 64u);
    otherKind[63] = static_cast<char>(otherKind[63] ^ 3);  // kind 1 becomes 2 and 2 becomes 1
    const auto write = [](const std::string& bytes) {
        std::ofstream("\\odd.vol", std::ios::binary) << bytes;
    };
    struct Case {
        const char* what;
        std::string bytes;
        DWORD flags, error;
    };
    for (const Case& c : {
             Case{"whole", whole, OPEN_EXISTING, 0},
             Case{"there already", whole, CREATE_NEW, ERROR_ALREADY_EXISTS},
             Case{"empty", "", OPEN_EXISTING, ERROR_ACCESS_DENIED},
             Case{"empty, or made", "", OPEN_ALWAYS, ERROR_ACCESS_DENIED},
             Case{"text", "[Settings]\r\nno volume", OPEN_EXISTING, ERROR_ACCESS_DENIED},
             Case{"cut", whole.substr(0, 5000), OPEN_EXISTING, ERROR_ACCESS_DENIED},
             Case{"other kind", otherKind, OPEN_EXISTING, ERROR_ACCESS_DENIED},
             Case{"no disposition", whole, 0, ERROR_INVALID_PARAMETER},
             Case{"text made anew", "text", CREATE_ALWAYS, 0},
         }) {
        write(c.bytes);
        EXPECT_EQ(Mount(L"\\odd.vol", c.flags | kKind, guid), c.error == 0) << c.what;
        EXPECT_EQ(GetLastError(), c.error) << c.what;
        EXPECT_EQ(CeUnmountDBVol(&guid), c.error == 0) << c.what;
    }
    EXPECT_ERROR(Mount(L"\\missing.vol", OPEN_EXISTING | kKind, guid), ERROR_FILE_NOT_FOUND);
    EXPECT_ERROR(Mount(L"\\missing\\x.vol", OPEN_ALWAYS | kKind, guid), ERROR_PATH_NOT_FOUND);
    const HANDLE locked =
        CreateFileW(L"\\odd.vol", GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_ERROR(Mount(L"\\odd.vol", OPEN_EXISTING | kKind, guid), ERROR_SHARING_VIOLATION);
    CloseHandle(locked);
    // An older device does not know the flag, a newer one wants it for a newer volume.
    EXPECT_FALSE(Mount(kVolume, OPEN_EXISTING | (kKind ^ EDB_MOUNT_FLAG), guid));
    DeleteFileW(L"\\odd.vol");
    DeleteFileW(kVolume);
}

TEST_F(Databases, AreListedByVolumeAndCounted) {
    CEGUID again;
    ASSERT_TRUE(Mount(L"TEST.vol", OPEN_EXISTING | kKind, again));
    EXPECT_EQ(std::memcmp(&again, &guid_, sizeof again), 0);
    EXPECT_TRUE(CeUnmountDBVol(&again));
    std::vector<std::wstring> names;
    CREATE_INVALIDGUID(&again);
    wchar_t name[MAX_PATH];
    while (CeEnumDBVolumes(&again, name, MAX_PATH)) names.push_back(name);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NO_MORE_ITEMS));
    EXPECT_EQ(names, IsNewerPocketPc() ? (std::vector<std::wstring>{L"pim.vol", kVolume})
                                       : std::vector<std::wstring>{kVolume});

    const CEOID oid = Create(guid_, L"First", {{kText, 0}});
    ASSERT_NE(oid, 0u);
    EXPECT_ERROR(Create(guid_, L"FIRST"), ERROR_DUP_NAME);
    EXPECT_EQ(Create(guid_, L"Blob", {{PropertyId(1, CEVT_BLOB), 0}}), 0u);
    EXPECT_FALSE(Open(guid_, oid, kNumber));  // no such order
    {
        const DatabaseHandle open = Open(guid_, oid, kText);
        ASSERT_TRUE(open);
        EXPECT_FALSE(CeDeleteDatabaseEx(&guid_, oid));
        EXPECT_ERROR(CeUnmountDBVol(&guid_), ERROR_SHARING_VIOLATION);
    }
    // By name in all volumes; the identifier is then an answer only.
    CREATE_INVALIDGUID(&again);
    CEOID found = 4711;
    wchar_t first[] = L"first";
    EXPECT_TRUE(DatabaseHandle(CeOpenDatabaseEx(&again, &found, first, 0, 0, nullptr)));
    EXPECT_EQ(found, oid);
    CEOIDINFO info = {};
    ASSERT_TRUE(CeOidGetInfoEx(&guid_, oid, &info));
    EXPECT_EQ(info.wObjType, OBJTYPE_DATABASE);
    EXPECT_STREQ(info.infDatabase.szDbaseName, L"First");
    EXPECT_EQ(info.infDatabase.rgSortSpecs[0].propid, kText);
    EXPECT_TRUE(CeDeleteDatabaseEx(&guid_, oid));
    EXPECT_ERROR(CeOidGetInfoEx(&guid_, oid, &info), ERROR_INVALID_HANDLE);
}

TEST_F(Databases, KeepRecordsOfEveryTypeUnderLastingIdentifiers) {
    const CEOID oid = Create(guid_, L"Types");
    BYTE bytes[] = {1, 0, 255};
    std::vector<CEPROPVAL> values = {Text(L"a\x0416"), Number(-2)};
    for (const WORD type : {CEVT_UI2, CEVT_I4, CEVT_UI4, CEVT_R8, CEVT_BOOL, CEVT_FILETIME}) {
        values.push_back(Value(PropertyId(7, type)));
        std::memset(&values.back().val, 0x81, 8);
    }
    values.push_back(Value(PropertyId(8, CEVT_BLOB)));
    values.back().val.blob = {3, bytes};
    CEOID record = 0;
    {
        const DatabaseHandle database = Open(guid_, oid);
        record = Write(database, values);
        ASSERT_NE(record, 0u);
        EXPECT_TRUE(CeDeleteRecord(database.get(), Write(database, {Number(1)})));
        EXPECT_EQ(Write(database, {Value(PropertyId(9, CEVT_STREAM))}), 0u);
    }
    Remount();
    const DatabaseHandle database = Open(guid_, oid, 0, CEDB_AUTOINCREMENT);
    EXPECT_GT(Write(database, {Number(1)}), record + 1);  // the deleted one's is not used again
    std::vector<CEPROPID> ids = {PropertyId(3, CEVT_I4)};
    for (const CEPROPVAL& value : values) ids.push_back(value.propid);
    WORD count = static_cast<WORD>(ids.size());
    BYTE* buffer = nullptr;
    DWORD size = 0;
    EXPECT_ERROR(CeReadRecordProps(database.get(), 0, &count, ids.data(), &buffer, &size),
                 ERROR_INSUFFICIENT_BUFFER);
    ASSERT_EQ(
        CeReadRecordProps(database.get(), CEDB_ALLOWREALLOC, &count, ids.data(), &buffer, &size),
        record);
    const void* const block = buffer;
    const auto read = static_cast<const CEPROPVAL*>(block);
    EXPECT_EQ(read[0].propid, ids[0]);
    EXPECT_EQ(read[0].wFlags, CEDB_PROPNOTFOUND);
    EXPECT_STREQ(read[1].val.lpwstr, L"a\x0416");
    EXPECT_EQ(read[2].val.iVal, -2);
    for (const auto& [at, bytesOfIt] : {std::pair{3, 2}, {4, 4}, {5, 4}, {6, 8}, {8, 8}}) {
        EXPECT_EQ(std::memcmp(&read[at].val, &values[at - 1].val, bytesOfIt), 0) << at;
    }
    ASSERT_EQ(read[9].val.blob.dwCount, 3u);
    EXPECT_EQ(std::memcmp(read[9].val.blob.lpb, bytes, 3), 0);
    // The next record has none of them, and then there is no other.
    count = 1;
    EXPECT_ERROR(
        CeReadRecordProps(database.get(), CEDB_ALLOWREALLOC, &count, ids.data(), &buffer, &size),
        ERROR_NO_DATA);
    EXPECT_ERROR(
        CeReadRecordProps(database.get(), CEDB_ALLOWREALLOC, &count, nullptr, &buffer, &size),
        ERROR_NO_MORE_ITEMS);
    LocalFree(buffer);
}

// As documented, and as a device that has a number instead.
TEST_F(Databases, GiveRecordsAnIdentifierOfTheirOwn) {
    wchar_t path[MAX_PATH];
    GetFullPathNameW(L"\\device.ini", MAX_PATH, path, nullptr);
    const CEPROPID own = PropertyId(1, CEVT_RECID);
    const CEOID oid = Create(guid_, L"Own");
    EXPECT_EQ(Create(guid_, L"Sorted", {{own, 0}}), 0u);
    const CEOID record = Write(Open(guid_, oid), {Value(own), Number(1)});
    EXPECT_EQ(record != 0, IsNewerPocketPc());
    for (const wchar_t* form : {L"blob", L"number"}) {
        ASSERT_TRUE(WritePrivateProfileStringW(L"device", L"recid", form, path));
        Remount();
        if (!record) continue;
        const DatabaseHandle database = Open(guid_, oid);
        DatabaseRecord values;
        ASSERT_TRUE(values.Read(database.get(), {kNumber, own}));
        const std::vector<std::uint8_t> identifier = values.Identifier(1);
        EXPECT_EQ(identifier.size(), *form == L'b' ? 16u : 4u);
        EXPECT_EQ(std::memcmp(&identifier.back() - 3, &record, 4), 0);
        EXPECT_TRUE(values.Identifier(0).empty() && !values.Number(1));
    }
    EXPECT_TRUE(WritePrivateProfileStringW(L"device", L"recid", nullptr, path));
}

TEST_F(Databases, LimitValuesAndRecords) {
    const DatabaseHandle database = Open(guid_, Create(guid_, L"Large"));
    const DWORD largest = IsNewerPocketPc() ? 8192 : 65472;
    std::vector<BYTE> bytes(largest + 1);
    CEPROPVAL first = Value(PropertyId(8, CEVT_BLOB)), second = Value(PropertyId(9, CEVT_BLOB));
    const auto write = [&](CEOID record, DWORD one, DWORD other) {
        first.val.blob = {one, bytes.data()};
        second.val.blob = {other, bytes.data()};
        return Write(database, other ? std::vector{second, first} : std::vector{first}, record);
    };
    EXPECT_ERROR(write(0, largest + 1, 0), ERROR_INVALID_PARAMETER);
    const CEOID record = write(0, largest, 0);
    EXPECT_NE(record, 0u);
    // Two of 65472 bytes leave 128 of the older volumes' 128 KB.
    EXPECT_EQ(write(0, largest, largest) != 0, !IsNewerPocketPc());
    EXPECT_NE(write(0, largest - 100, 100), 0u);
    EXPECT_EQ(write(0, largest - 100, 101) != 0, !IsNewerPocketPc());
    EXPECT_EQ(Write(database, {Number(1)}, record) != 0, !IsNewerPocketPc());
    EXPECT_NE(write(record, 8, 0), 0u);
    EXPECT_NE(Write(database, {Number(1)}, record), 0u);
}

TEST_F(Databases, SortAndSeek) {
    const CEOID oid = Create(guid_, L"Sorted",
                             {{kNumber, CEDB_SORT_DESCENDING | CEDB_SORT_UNKNOWNFIRST},
                              {kText, CEDB_SORT_CASEINSENSITIVE}});
    {
        const DatabaseHandle database = Open(guid_, oid);
        for (const auto& [text, number] :
             {std::pair{L"b", 3}, {L"C", 1}, {L"a", 3}, {L"d", -5}, {L"b", 9}}) {
            Write(database, {Text(text), Number(static_cast<short>(number))});
        }
        Write(database, {Text(L"e")});
        Write(database, {Number(0)});
    }
    const auto texts = [&](CEPROPID sort) {
        std::wstring all;
        ForEachRecord(Open(guid_, oid, sort).get(), {kText},
                      [&](CEOID, const DatabaseRecord& record) {
                          all += record.Text(0).empty() ? L"-" : record.Text(0);
                      });
        return all;
    };
    EXPECT_EQ(texts(0), L"bCadbe-");
    EXPECT_EQ(texts(kText), L"abbCde-");
    EXPECT_EQ(texts(kNumber), L"ebbaC-d");

    const DatabaseHandle database = Open(guid_, oid, kText);
    CEPROPVAL b = Text(L"B"), z = Text(L"z"), number = Number(3);
    const auto pointer = [](const CEPROPVAL& value) { return reinterpret_cast<DWORD_PTR>(&value); };
    const std::tuple<DWORD, DWORD_PTR, int> cases[] = {
        {CEDB_SEEK_BEGINNING, 2, 2},
        {CEDB_SEEK_CURRENT, 2, 4},
        {CEDB_SEEK_CURRENT, static_cast<DWORD_PTR>(-1), 3},
        {CEDB_SEEK_END, 0, 6},
        {CEDB_SEEK_END, 6, 0},
        {CEDB_SEEK_END, 7, -1},
        {CEDB_SEEK_VALUEFIRSTEQUAL, pointer(b), 1},
        {CEDB_SEEK_VALUENEXTEQUAL, pointer(b), 2},
        {CEDB_SEEK_VALUENEXTEQUAL, pointer(b), -1},
        {CEDB_SEEK_VALUESMALLER, pointer(b), 0},
        {CEDB_SEEK_VALUEGREATER, pointer(b), IsNewerPocketPc() ? 3 : 1},
        {CEDB_SEEK_VALUEGREATER, pointer(z), -1},
        {CEDB_SEEK_VALUEFIRSTEQUAL, pointer(number), -1},  // not the order's property
        {CEDB_SEEK_CEOID, oid, -1},
        {CEDB_SEEK_BEGINNING, 7, -1}};
    for (const auto& [type, value, expected] : cases) {  // -1: not found
        DWORD index = 0;
        const CEOID found = CeSeekDatabase(database.get(), type, value, &index);
        EXPECT_EQ(found ? static_cast<int>(index) : -1, expected) << type << ' ' << expected;
    }
}

TEST_F(Databases, KeepAPositionWhileRecordsGo) {
    const CEOID oid = Create(guid_, L"Going", {{kNumber, 0}});
    const DatabaseHandle writer = Open(guid_, oid), sought = Open(guid_, oid, kNumber);
    std::vector<CEOID> records;
    for (short i = 0; i < 4; ++i) records.push_back(Write(writer, {Number(i)}));
    const DatabaseHandle reading = Open(guid_, oid, kNumber, CEDB_AUTOINCREMENT);
    DatabaseRecord record;
    ASSERT_TRUE(record.Read(reading.get(), {kNumber}));
    ASSERT_TRUE(CeSeekDatabase(sought.get(), CEDB_SEEK_BEGINNING, 1, nullptr));
    EXPECT_TRUE(CeDeleteRecord(writer.get(), records[1]));
    EXPECT_FALSE(CeDeleteRecord(writer.get(), records[1]));
    EXPECT_ERROR(record.Read(sought.get(), {kNumber}), ERROR_KEY_DELETED);
    ASSERT_TRUE(record.Read(reading.get(), {kNumber}));
    EXPECT_EQ(record.Number(0), 2u);
    // A record that moves in the order takes the position along.
    ASSERT_EQ(Write(writer, {Number(-7)}, records[3]), records[3]);
    ASSERT_TRUE(record.Read(reading.get(), {kNumber}));
    EXPECT_EQ(record.Number(0), static_cast<std::uint32_t>(-7));
    ASSERT_TRUE(record.Read(reading.get(), {kNumber}));
    EXPECT_EQ(record.Number(0), 0u);
}

// The next message to a window from the databases; all zero when none comes.
MSG Await(HWND window) {
    const DWORD start = GetTickCount();
    MSG message = {};
    while (GetTickCount() - start < 10'000) {
        if (PeekMessageW(&message, window, WM_DBNOTIFICATION, DB_NOTIFY_VOLUME_CHANGED, PM_REMOVE))
            return message;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 100, QS_ALLINPUT);
    }
    return {};
}

TEST_F(Databases, TellWhatOthersChange) {
    const HWND window = MakeWindow(L"Notified", DefWindowProcW);
    const CEOID oid = Create(guid_, L"Noticed");
    CENOTIFYREQUEST request = {sizeof request, window, CEDB_EXNOTIFICATION, nullptr, 42};
    const DatabaseHandle watching = Open(guid_, oid, 0, 0, &request);
    const DatabaseHandle other = Open(guid_, oid);
    ASSERT_TRUE(watching && other);
    CEOID record = 0;
    const auto expect = [&](UINT code, CEOID changed, CEOID parent) {
        const MSG message = Await(window);
        ASSERT_EQ(message.message, static_cast<UINT>(WM_DBNOTIFICATION));
        const auto notification = reinterpret_cast<CENOTIFICATION*>(message.lParam);
        EXPECT_EQ(notification->dwParam, 42u);
        EXPECT_EQ(notification->uType, code);
        EXPECT_EQ(std::memcmp(&notification->guid, &guid_, sizeof guid_), 0);
        EXPECT_TRUE(!changed || notification->oid == changed);
        EXPECT_EQ(notification->oidParent, parent);
        record = notification->oid;
        EXPECT_TRUE(CeFreeNotification(&request, notification));
    };
    Write(watching, {Number(1)});  // its own change is no news
    const CEOID mine = Write(other, {Number(1)});
    expect(DB_CEOID_CREATED, mine, oid);
    const std::wstring place = L" \\test.vol Noticed ";
    ASSERT_TRUE(Control(L"add" + place + L"2:i2=5"));
    expect(DB_CEOID_CREATED, 0, oid);
    EXPECT_GT(record, mine);
    const CEOID added = record;
    ASSERT_TRUE(Control(L"change" + place + std::to_wstring(added) + L" 2:i2=6"));
    expect(DB_CEOID_CHANGED, added, oid);
    DatabaseRecord values;
    ASSERT_EQ(CeSeekDatabase(watching.get(), CEDB_SEEK_CEOID, added, nullptr), added);
    ASSERT_TRUE(values.Read(watching.get(), {kNumber}));
    EXPECT_EQ(values.Number(0), 6u);
    ASSERT_TRUE(Control(L"delete" + place + std::to_wstring(added)));
    expect(DB_CEOID_RECORD_DELETED, added, oid);
    ASSERT_TRUE(Control(L"drop" + place));
    expect(DB_CEOID_DATABASE_DELETED, oid, 0);
    DestroyWindow(window);
}

TEST_F(Databases, HaveOrdersOfSeveralKeysOnNewerDevices) {
    const NewerDatabaseFunctions& newer = GetDatabaseLayer().newer();
    if (!IsNewerPocketPc()) {
        EXPECT_TRUE(!newer.openDatabase && !newer.readRecord && !newer.seek && !newer.getInfo);
        EXPECT_FALSE(newer.openInSession);
        return;
    }
    ASSERT_TRUE(newer.openDatabase && newer.readRecord && newer.seek && newer.getInfo);
    CEDBASEINFOEX info = {CEDBASEINFOEX_VERSION, 32, CEDB_VALIDNAME | CEDB_VALIDSORTSPEC, L"Keys"};
    for (WORD i = 1; i < 31; ++i) {
        info.rgSortSpecs[i] = {SORTORDERSPECEX_VERSION, 1, 0, 0, {PropertyId(i, CEVT_R8)}};
    }
    info.rgSortSpecs[0] = {SORTORDERSPECEX_VERSION, 2, CEDB_SORT_UNIQUE, 0, {kNumber, kText}};
    info.rgSortSpecs[31] = {SORTORDERSPECEX_VERSION, 1, 0, 0, {kText}};
    const CEOID oid = CeCreateDatabaseEx2(&guid_, &info);
    ASSERT_NE(oid, 0u);
    DatabaseRequest request;
    request.volume = &guid_;
    request.name = L"keys";
    const auto texts = [&](DatabaseSort sort) {
        request.sort = sort;
        std::wstring all;
        CEOID found = 0;
        ForEachRecord(GetDatabaseLayer().Open(request, &found).get(), {kText},
                      [&](CEOID, const DatabaseRecord& record) { all += record.Text(0); });
        EXPECT_EQ(found, oid);
        return all;
    };
    {
        const DatabaseHandle database = Open(guid_, oid);
        for (const auto& [text, number] : {std::pair{L"b", 1}, {L"c", 0}, {L"a", 1}, {L"a", 2}}) {
            ASSERT_NE(Write(database, {Text(text), Number(static_cast<short>(number))}), 0u);
        }
        EXPECT_ERROR(Write(database, {Text(L"a"), Number(2)}), ERROR_ALREADY_EXISTS);
    }
    EXPECT_EQ(texts({}), L"bcaa");
    EXPECT_EQ(texts({kText, -1}), L"aabc");    // the last order that has it
    EXPECT_EQ(texts({kNumber, -1}), L"caba");  // the only one
    EXPECT_EQ(texts({kText, 0}), L"caba");
    EXPECT_EQ(texts({kText, 31}), L"aabc");
    EXPECT_EQ(texts({PropertyId(9, CEVT_I4), -1}), L"bcaa");
    request.name = L"missing";
    EXPECT_FALSE(GetDatabaseLayer().Open(request));
    // Without a session only, and in no volume of the older kind.
    ASSERT_TRUE(newer.openInSession);
    CEGUID older;
    ASSERT_TRUE(Mount(L"\\older.vol", CREATE_ALWAYS, older));
    ASSERT_NE(Create(older, L"Keys"), 0u);
    const auto errorOf = [&](HANDLE session, CEGUID& volume) {
        CEOID found = 0;
        wchar_t name[] = L"Keys";
        SetLastError(ERROR_SUCCESS);
        const DatabaseHandle database(
            newer.openInSession(session, &volume, &found, name, nullptr, 0, nullptr));
        return database ? 0 : GetLastError();
    };
    EXPECT_EQ(errorOf(nullptr, guid_), 0u);
    EXPECT_EQ(errorOf(INVALID_HANDLE_VALUE, guid_), static_cast<DWORD>(ERROR_INVALID_HANDLE));
    EXPECT_EQ(errorOf(nullptr, older), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(CeUnmountDBVol(&older) && DeleteFileW(L"\\older.vol"));
}

}  // namespace
