// Notices of changes. Between processes they go by one registered message to a hidden window that
// each listening process has on a thread of its own.
#include "pocketpc/coredll/notices.h"

#include "pocketpc/coredll/database.h"
#include "pocketpc/coredll/store.h"

namespace {

constexpr wchar_t kClass[] = L"PocketPC.StoreNotices";

UINT NoticeMessage() {
    static const UINT message = RegisterWindowMessageW(L"PocketPC.StoreNotice");
    return message;
}

// A notice in two parameters: a volume's identifier has two words that differ between volumes, of
// which half of one is left out; codes are small, and a parent is a record's database or nothing.
static_assert(sizeof(WPARAM) == 8 && sizeof(LPARAM) == 8);

WPARAM PackVolume(const Notice& notice) {
    return WPARAM{notice.volume.Data2} << 32 | WPARAM{notice.volume.Data3 & 0xFFFF} << 16 |
           notice.code;
}

LPARAM PackObjects(const Notice& notice) {
    return static_cast<LPARAM>(ULONG_PTR{notice.database} << 32 | notice.oid);
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

// Posts to this process's handles which `isMeant` says are meant.
template <typename IsMeant>
void Deliver(Notice notice, HANDLE changer, IsMeant isMeant) {
    Store& store = Store::Get();
    const std::lock_guard lock(store.mutex());
    store.ForEach<OpenDatabase>([&](HANDLE handle, const OpenDatabase& database) {
        if (handle == changer || !database.request() || database.oid() != notice.database) return;
        const CEGUID volume = store.IdentifierOf(database.volume());
        if (!isMeant(volume)) return;
        notice.volume = volume;
        Post(database, notice);
    });
}

LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != NoticeMessage()) return DefWindowProcW(hwnd, message, wParam, lParam);
    Notice notice = {};
    notice.code = LOWORD(wParam);
    notice.database = static_cast<CEOID>(static_cast<ULONG_PTR>(lParam) >> 32);
    notice.oid = static_cast<CEOID>(lParam);
    notice.parent = notice.code == DB_CEOID_DATABASE_DELETED ? 0 : notice.database;
    Deliver(notice, nullptr, [&](const CEGUID& volume) {
        notice.volume = volume;
        return PackVolume(notice) == wParam;
    });
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
    Deliver(notice, changer, [&](const CEGUID& volume) { return IsSame(volume, notice.volume); });
    HWND window = nullptr;
    while ((window = FindWindowExW(HWND_MESSAGE, window, kClass, nullptr))) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        if (process == GetCurrentProcessId()) continue;
        PostMessageW(window, NoticeMessage(), PackVolume(notice), PackObjects(notice));
    }
}

extern "C" BOOL WINAPI CeFreeNotification(CENOTIFYREQUEST* request, CENOTIFICATION* notification) {
    if (!request || !notification) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    return HeapFree(request->hHeap ? request->hHeap : GetProcessHeap(), 0, notification);
}
