// What a key or a tap costs where there is much to show, beside what it costs where there is
// little: each is measured in a process of its own on the same device, which is given more before
// the second.
//
// usage: growth_bench.exe (with a device of its own as current drive)
#include <windows.h>

#include <commctrl.h>

#include <cstring>
#include <string>
#include <vector>

#include "appearance/categories/icons_list_control.h"
#include "bench/bench.h"
#include "bench/beside.h"
#include "pocketpc/common/mail_store.h"
#include "resources/ids.h"
#include "tools/walk/walker.h"

namespace {

struct Amounts {
    int mailFolders, categories, icons;
};
constexpr Amounts kLittle = {400, 60, 500}, kMuch = {6400, 1000, 8000};

struct Action {
    const char* what;
    const char* beside;
    double milliseconds = 0;
};
Action actions[] = {
    {"a tick among 6,400 mail folders", "among 400"},
    {"another filter with 6,400 mail folders", "with 400"},
    {"the next of 1,000 categories", "of 60"},
    {"the next page of 8,000 icons", "of 500"},
};
enum { kTick, kFilter, kCategory, kPage };

// The best of some; one that does nothing would be none.
double Best(const std::function<void()>& action) {
    double best = Time(action);
    for (int i = 1; i < 20; ++i) best = std::min(best, Time(action));
    return best;
}

void ChooseFilter(HWND page, int index) {
    const HWND list = GetDlgItem(page, IDC_MAIL_FILTER);
    SendMessageW(list, CB_SETCURSEL, index, 0);
    SendMessageW(page, WM_COMMAND, MAKEWPARAM(IDC_MAIL_FILTER, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
}

void MeasureFilters(HWND page) {
    const HWND tree = GetDlgItem(page, IDC_MAIL_FOLDERS);
    const HWND filters = GetDlgItem(page, IDC_MAIL_FILTER);
    Require(SendMessageW(filters, CB_GETCOUNT, 0, 0) > 2, "finding two filters");
    const auto text = [page] {
        wchar_t name[64] = {};
        GetDlgItemTextW(page, IDC_MAIL_FILTER_NAME, name, 64);
        return std::wstring(name);
    };
    ChooseFilter(page, 0);
    const std::wstring before = text();
    const auto tick = [tree] {
        SendMessageW(tree, WM_KEYDOWN, VK_SPACE, 1);
        UpdateWindow(tree);
    };
    tick();
    Require(text() != before, "ticking a folder");
    tick();
    actions[kTick].milliseconds = Best(tick);
    actions[kFilter].milliseconds = Best([&] {
        ChooseFilter(page, 1);
        ChooseFilter(page, 2);
        UpdateWindow(tree);
    });
}

void MeasureCategories(HWND dialog) {
    const HWND list = GetDlgItem(dialog, IDC_CATEGORY_LIST);
    const auto selected = [list] {
        return SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
    };
    const LRESULT before = selected();
    actions[kCategory].milliseconds = Best([&] {
        SendMessageW(list, WM_KEYDOWN, VK_DOWN, 1);
        UpdateWindow(list);
    });
    Require(selected() == before + 20, "choosing other categories");
}

void MeasureIcons(HWND dialog) {
    const HWND list = FindWindowExW(dialog, nullptr, kIconsListClass, nullptr);
    Require(list != nullptr, "finding the list of icons");
    actions[kPage].milliseconds = Best([&] {
        SendMessageW(list, WM_VSCROLL, SB_PAGEDOWN, 0);
        SendMessageW(list, WM_VSCROLL, SB_PAGEUP, 0);
    });
}

void Furnish(const Amounts& amounts) {
    constexpr int kAccounts = 8;
    MailStore mail;
    for (int account = 0; account < kAccounts; ++account) {
        const DWORD number =
            mail.Add(0, MailKind::kAccount, L"Account " + std::to_wstring(account), L"ActiveSync");
        mail.Add(number, MailKind::kInbox, L"Inbox");
        mail.Add(number, MailKind::kSent, L"Sent");
        for (int i = 2; i < amounts.mailFolders / kAccounts; ++i) {
            mail.Add(number, MailKind::kFolder, L"Folder " + std::to_wstring(i));
        }
    }
    Require(mail.Save(), "saving the mail store");
    const std::wstring control = L"\"" + Beside(L"devicectl.exe") + L"\" ";
    _wsystem((control + L"drop \\pim.vol CategoryMainDB").c_str());
    FILE* const script = _wpopen((control + L"furnish -").c_str(), L"w");
    Require(script != nullptr, "furnishing the device");
    fputs("database \\pim.vol CategoryMainDB 2:string~\n", script);
    for (int i = 0; i < amounts.categories; ++i) {
        fprintf(script, "    record 1:recid \"2:string=Category %d\" 3:i4=0\n", i);
    }
    Require(_pclose(script) == 0, "furnishing the device");
    const std::wstring folder = L"\\Program Files\\Lum Diary\\IconSet\\";
    for (int i = 0; i < amounts.icons; ++i) {
        const std::wstring path = folder + std::to_wstring(i) + L".bmp";
        CopyFileW(Beside(L"iconset\\96\\apple.bmp").c_str(), path.c_str(), TRUE);
    }
}

void MeasureAll() {
    Walker walker({{240, 320}});
    Require(walker.Walk([](const View& view) {
        if (view.name == "messages_filter") MeasureFilters(view.dialog);
        if (view.name == "category_icons_main") MeasureCategories(view.dialog);
        if (view.name == "category_icons_chooser") MeasureIcons(view.dialog);
    }),
            "opening every page");
}

// The measurements of a process of its own.
std::vector<double> MeasureApart(const wchar_t* amount) {
    FILE* const output =
        _wpopen((L"\"" + Beside(L"growth_bench.exe") + L"\" " + amount).c_str(), L"r");
    std::vector<double> times;
    double time = 0;
    while (output && fscanf(output, "%lf", &time) == 1) times.push_back(time);
    Require(output && _pclose(output) == 0 && times.size() == std::size(actions), "measuring");
    return times;
}

}  // namespace

int main(int count, char** arguments) {
    if (count > 1) {
        Furnish(std::strcmp(arguments[1], "much") == 0 ? kMuch : kLittle);
        MeasureAll();
        for (const Action& action : actions) std::printf("%f\n", action.milliseconds);
        return 0;
    }
    const std::vector<double> little = MeasureApart(L"little"), much = MeasureApart(L"much");
    for (std::size_t i = 0; i < std::size(actions); ++i) {
        Report(actions[i].what, "ms", actions[i].beside, {much[i], little[i]}, 1.5);
    }
    return 0;
}
