// What the device says of notes: their folders and the programs that write them by hand.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "pages/stores/handwriting.h"
#include "pages/stores/note_folders.h"
#include "settings/settings_key.h"

namespace {

TEST(Notes, FoldersAreSortedByName) {
    const std::vector<std::wstring> sorted = {L"Ähre",  L"Apple", L"apricot", L"azure",
                                              L"zebra", L"архив", L"Ящик"};
    for (const std::wstring& name : sorted) {
        CreateDirectoryW((L"\\My Documents\\" + name).c_str(), nullptr);
    }
    std::vector<std::wstring> folders = NoteFolders();
    std::erase_if(folders, [&](const std::wstring& name) {
        return std::ranges::find(sorted, name) == sorted.end();
    });
    EXPECT_EQ(folders, sorted);
}

TEST(Notes, HandwritingPrograms) {
    const auto make = [](const wchar_t* path) {
        return CSettingsKey(HKEY_CURRENT_USER, path, true, false);
    };
    EXPECT_EQ(PhatNotesVersion(), 0u);
    make(L"Software\\PhatWare\\PhatNotes\\Settings");
    EXPECT_EQ(PhatNotesVersion(), 0x407u);
    make(L"Software\\PhatWare\\PhatNotes\\4.0\\Settings");
    EXPECT_EQ(PhatNotesVersion(), 0x405u);

    EXPECT_FALSE(IsPhatPadPresent());
    CreateDirectoryW(L"\\Viewer", nullptr);
    make(L"Software\\PhatWare\\PhatPad Viewer").WriteString(L"InstPath", L"\\Viewer");
    CloseHandle(CreateFileW(L"\\Viewer\\PhatPadViewer.exe", GENERIC_WRITE, 0, nullptr,
                            CREATE_ALWAYS, 0, nullptr));
    EXPECT_FALSE(IsPhatPadPresent()) << "its library is not there";
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring library = program;
    library = library.substr(0, library.rfind(L'\\')) + L"\\any_library.dll";
    ASSERT_TRUE(CopyFileW(library.c_str(), L"\\Viewer\\PhatPadViewCtl.dll", FALSE));
    EXPECT_TRUE(IsPhatPadPresent());
    EXPECT_EQ(GetModuleHandleW(L"PhatPadViewCtl.dll"), nullptr) << "still loaded";
    DeleteFileW(L"\\Viewer\\PhatPadViewer.exe");
    EXPECT_FALSE(IsPhatPadPresent());
    DeleteKeyTree(HKEY_CURRENT_USER, L"Software\\PhatWare");

    // A key that does not note the folder means the usual one, and is another program's.
    constexpr wchar_t kPad[] = L"Software\\PhatWare\\PhatPad";
    make(kPad);
    ASSERT_TRUE(MoveFileW(L"\\Viewer", L"\\Program Files\\PhatPad"));
    CloseHandle(CreateFileW(L"\\Program Files\\PhatPad\\PhatPad.exe", GENERIC_WRITE, 0, nullptr,
                            CREATE_ALWAYS, 0, nullptr));
    EXPECT_TRUE(IsPhatPadPresent());
    std::wstring value;
    EXPECT_FALSE(make(kPad).FirstValueName(value)) << "written to";
    DeleteKeyTree(HKEY_CURRENT_USER, L"Software\\PhatWare");
}

}  // namespace
