// A fresh volume for a test, and short ways to make databases and values in it.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

#include "pages/stores/database_record.h"
#include "settings/device.h"

inline constexpr wchar_t kVolume[] = L"\\test.vol";
inline constexpr CEPROPID kText = PropertyId(1, CEVT_LPWSTR);
inline constexpr CEPROPID kNumber = PropertyId(2, CEVT_I2);
inline const DWORD kKind = IsNewerPocketPc() ? EDB_MOUNT_FLAG : 0;

// Expects a call to fail with an error.
#define EXPECT_ERROR(call, error) \
    EXPECT_FALSE(call);           \
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(error))

inline BOOL Mount(const wchar_t* path, DWORD flags, CEGUID& guid) {
    SetLastError(ERROR_SUCCESS);
    return CeMountDBVol(&guid, const_cast<LPWSTR>(path), flags);
}

inline CEOID Create(CEGUID& guid, const wchar_t* name,
                    std::initializer_list<SORTORDERSPEC> orders = {}) {
    CEDBASEINFO info = {};
    info.dwFlags = CEDB_VALIDNAME | CEDB_VALIDSORTSPEC;
    wcscpy(info.szDbaseName, name);
    for (const SORTORDERSPEC& order : orders) info.rgSortSpecs[info.wNumSortOrder++] = order;
    return CeCreateDatabaseEx(&guid, &info);
}

inline DatabaseHandle Open(CEGUID& guid, CEOID oid, CEPROPID sort = 0, DWORD flags = 0,
                           CENOTIFYREQUEST* notify = nullptr) {
    return DatabaseHandle(CeOpenDatabaseEx(&guid, &oid, nullptr, sort, flags, notify));
}

inline CEPROPVAL Value(CEPROPID id) {
    CEPROPVAL value = {};
    value.propid = id;
    return value;
}

inline CEPROPVAL Text(const wchar_t* text) {
    CEPROPVAL value = Value(kText);
    value.val.lpwstr = const_cast<LPWSTR>(text);
    return value;
}

inline CEPROPVAL Number(short number) {
    CEPROPVAL value = Value(kNumber);
    value.val.iVal = number;
    return value;
}

inline CEOID Write(const DatabaseHandle& database, std::vector<CEPROPVAL> values, CEOID oid = 0) {
    return CeWriteRecordProps(database.get(), oid, static_cast<WORD>(values.size()), values.data());
}

// A fresh volume, mounted.
class Databases : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(Mount(kVolume, CREATE_ALWAYS | kKind, guid_)); }
    void TearDown() override {
        EXPECT_TRUE(CeUnmountDBVol(&guid_));
        EXPECT_TRUE(DeleteFileW(kVolume));
    }
    void Remount() {
        ASSERT_TRUE(CeUnmountDBVol(&guid_));
        ASSERT_TRUE(Mount(kVolume, OPEN_EXISTING | kKind, guid_));
    }

    CEGUID guid_;
};
