// Notices of changes. Between processes they go by one registered message to a hidden window that
// each listening process has on a thread of its own.
#include "pocketpc/coredll/notices.h"

#include <cwchar>
#include <iterator>

#include "pocketpc/coredll/database.h"
#include "pocketpc/coredll/store.h"

namespace {

constexpr wchar_t kClass[] = L"PocketPC.StoreNotices";

UINT NoticeMessage() {
    static const UINT message = RegisterWindowMessageW(L"PocketPC.StoreNotice");
    return message;
}

// A notice is longer than a message's parameters where these have 32 bits. It goes as the name of a
// global atom, which each receiver gives up; the parent is a record's database or nothing.
constexpr wchar_t kNoticeFormat[] = L"%lx %lx %lx %lx %lx %x %lx";
constexpr int kNoticeLength = 7 * 9;

ATOM AddNotice(const Notice& notice) {
    wchar_t text[kNoticeLength] = {};
    const CEGUID& volume = notice.volume;
    std::swprintf(text, std::size(text), kNoticeFormat, volume.Data1, volume.Data2, volume.Data3,
                  volume.Data4, notice.database, notice.code, notice.oid);
    return GlobalAddAtomW(text);
}

bool TakeNotice(ATOM atom, Notice& notice) {
    wchar_t text[kNoticeLength] = {};
    GlobalGetAtomNameW(atom, text, kNoticeLength);
    GlobalDeleteAtom(atom);
    CEGUID& volume = notice.volume;
    const int words = std::swscanf(text, kNoticeFormat, &volume.Data1, &volume.Data2, &volume.Data3,
                                   &volume.Data4, &notice.database, &notice.code, &notice.oid);
    notice.parent = notice.code == DB_CEOID_DATABASE_DELETED ? 0 : notice.database;
    return words == 7;
}

void Post(const OpenDatabase& database, const Notice& notice) {
    const CENOTIFYREQUEST& request = *database.request();
    if (!(request.dwFlags & CEDB_EXNOTIFICATION)) {
        // The short form does not say which volume, and so is for the object store alone.
        if (!CHECK_SYSTEMGUID(&notice.volume)) return;
        PostMessageW(request.hwnd, notice.code, notice.oid, static_cast<LPARAM>(notice.parent));
        return;
    }
    const HANDLE heap = request.hHeap ? request.hHeap : GetProcessHeap();
    const auto notification =
        static_cast<CENOTIFICATION*>(HeapAlloc(heap, 0, sizeof(CENOTIFICATION)));
    if (!notification) return;
    *notification = {sizeof(CENOTIFICATION), request.dwParam, notice.code,
                     notice.volume,          notice.oid,      notice.parent};
    if (!PostMessageW(request.hwnd, WM_DBNOTIFICATION, 0, reinterpret_cast<LPARAM>(notification))) {
        HeapFree(heap, 0, notification);
    }
}

// Posts to this process's handles.
void Deliver(const Notice& notice, HANDLE changer) {
    Store& store = Store::Get();
    const std::lock_guard lock(store.mutex());
    store.ForEach<OpenDatabase>([&](HANDLE handle, const OpenDatabase& database) {
        if (handle == changer || !database.request() || database.oid() != notice.database) return;
        if (IsSame(store.IdentifierOf(database.volume()), notice.volume)) Post(database, notice);
    });
}

LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != NoticeMessage()) return DefWindowProcW(hwnd, message, wParam, lParam);
    Notice notice = {};
    if (TakeNotice(static_cast<ATOM>(wParam), notice)) Deliver(notice, nullptr);
    return 0;
}

DWORD WINAPI Listen(void* ready) {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = kClass;
    RegisterClassW(&windowClass);
    CreateWindowExW(0, kClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, windowClass.hInstance,
                    nullptr);
    SetEvent(ready);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return 0;
}

bool StartListening() {
    const HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    const HANDLE thread = CreateThread(nullptr, 0, Listen, ready, 0, nullptr);
    // A change right after the handle was opened must not be missed.
    if (thread) WaitForSingleObject(ready, INFINITE);
    CloseHandle(ready);
    if (thread) CloseHandle(thread);
    return thread != nullptr;
}

}  // namespace

void ListenForNotices() {
    static const bool listening = StartListening();
    (void)listening;
}

void SendNotice(const Notice& notice, HANDLE changer) {
    Deliver(notice, changer);
    HWND window = nullptr;
    while ((window = FindWindowExW(HWND_MESSAGE, window, kClass, nullptr))) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        if (process == GetCurrentProcessId()) continue;
        const ATOM atom = AddNotice(notice);
        if (!PostMessageW(window, NoticeMessage(), atom, 0)) GlobalDeleteAtom(atom);
    }
}

extern "C" BOOL WINAPI CeFreeNotification(CENOTIFYREQUEST* request, CENOTIFICATION* notification) {
    if (!request || !notification) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    return HeapFree(request->hHeap ? request->hHeap : GetProcessHeap(), 0, notification);
}
