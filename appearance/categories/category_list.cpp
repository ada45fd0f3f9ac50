#include "appearance/categories/category_list.h"

#include <algorithm>
#include <initializer_list>

#include "app/language/module.h"
#include "appearance/categories/category_color_store.h"
#include "appearance/categories/category_icon_files.h"
#include "appearance/categories/category_icons.h"
#include "base/names.h"
#include "pages/stores/database_record.h"
#include "settings/device.h"

namespace {

constexpr wchar_t kWindowClass[] = L"LumDiaryCategoryList.0";

constexpr wchar_t kOlderDatabase[] = L"\\Categories Database";
constexpr wchar_t kNewerDatabase[] = L"CategoryMainDB";
constexpr wchar_t kNewerAssociations[] = L"CategoryAssocDB";

// What a notification says of the database it is about.
constexpr DWORD kCategories = 1;
constexpr DWORD kAssociations = 2;

// The properties of a record, in the order that the two functions below know them by.
constexpr std::initializer_list<CEPROPID> kOlderProperties = {
    PropertyId(0x4001, CEVT_LPWSTR), PropertyId(0x4002, CEVT_I2), PropertyId(0x4003, CEVT_I2),
    PropertyId(0x4004, CEVT_I2),     PropertyId(0x4005, CEVT_I2), PropertyId(0x4006, CEVT_I2),
};
constexpr std::initializer_list<CEPROPID> kNewerProperties = {
    PropertyId(2, CEVT_LPWSTR),
    PropertyId(1, CEVT_RECID),
    PropertyId(3, CEVT_I4),
};

const std::initializer_list<CEPROPID>& Properties() {
    return IsNewerPocketPc() ? kNewerProperties : kOlderProperties;
}

// A record that lacks any of the properties has no name.
Category FromRecord(CEOID oid, const DatabaseRecord& record) {
    Category category;
    category.record = oid;
    bool complete = true;
    const auto number = [&](std::size_t index) {
        const std::optional<std::uint32_t> value = record.Number(index);
        if (!value) complete = false;
        return value.value_or(0);
    };
    if (IsNewerPocketPc()) {
        category.identifier = record.Identifier(1);
        complete = !category.identifier.empty();
        category.flags.fill(1);
        category.number = number(2);
    } else {
        category.number = number(1);
        for (std::size_t i = 0; i < category.flags.size(); ++i) category.flags[i] = number(2 + i);
    }
    if (complete) category.name = record.Text(0);
    return category;
}

bool loaded = false;  // the process's one

}  // namespace

CategoryList& CategoryList::Instance() {
    static CategoryList list;
    loaded = true;
    return list;
}

void CategoryList::Reload() {
    if (loaded) Instance().LoadIcons();
}

CategoryList::CategoryList() {
    Window::Create(kWindowClass, L"", WS_POPUP, RECT{}, nullptr, ModuleInstance());
    const bool newer = IsNewerPocketPc();
    database_ = Open(newer ? kNewerDatabase : kOlderDatabase, kCategories);
    if (newer) associations_ = Open(kNewerAssociations, kAssociations);
    if (database_) {
        ForEachRecord(database_.get(), Properties(), [this](CEOID oid, const DatabaseRecord& read) {
            categories_.push_back(FromRecord(oid, read));
        });
    }
    LoadIcons();
}

CategoryList::~CategoryList() {
    database_ = DatabaseHandle();
    associations_ = DatabaseHandle();
    if (!hwnd()) return;
    // What has arrived and was not read yet.
    MSG message;
    while (PeekMessageW(&message, hwnd(), WM_DBNOTIFICATION, WM_DBNOTIFICATION, PM_REMOVE)) {
        CENOTIFYREQUEST request = RequestFor(kCategories);
        CeFreeNotification(&request, reinterpret_cast<CENOTIFICATION*>(message.lParam));
    }
    DestroyWindow(hwnd());
}

CENOTIFYREQUEST CategoryList::RequestFor(DWORD database) const {
    return {sizeof(CENOTIFYREQUEST), hwnd(), CEDB_EXNOTIFICATION, nullptr, database};
}

DatabaseHandle CategoryList::Open(const wchar_t* name, DWORD database) const {
    CENOTIFYREQUEST notify = RequestFor(database);
    DatabaseRequest request;
    request.name = name;
    request.notify = &notify;
    return GetDatabaseLayer().Open(request);
}

std::optional<Category> CategoryList::ReadRecord(CEOID record) const {
    DatabaseRecord read;
    if (!GetDatabaseLayer().Seek(database_.get(), CEDB_SEEK_CEOID, record) ||
        !read.Read(database_.get(), Properties())) {
        return std::nullopt;
    }
    return FromRecord(record, read);
}

bool CategoryList::HasName(int index) const {
    return index >= 0 && index < Count() && !At(index).name.empty();
}

std::optional<int> CategoryList::Find(CEOID record) const {
    const auto found =
        std::find_if(categories_.begin(), categories_.end(),
                     [record](const Category& category) { return category.record == record; });
    if (found == categories_.end()) return std::nullopt;
    return static_cast<int>(found - categories_.begin());
}

const std::wstring& CategoryList::Folder() {
    if (folder_.empty()) folder_ = FindCategoryIconFolder();
    return folder_;
}

HBITMAP CategoryList::GetIcon(int index) {
    // A new skin makes every picture be loaded anew.
    if (!GetCategoryIcons().IsLoaded()) LoadIcons();
    return GetCategoryIcons().Get(index);
}

COLORREF CategoryList::GetColor(int index) const {
    if (index < 0 || index >= Count()) return kNoColor;
    return colors_[static_cast<std::size_t>(index)].GetColor();
}

int CategoryList::GetIntensity(int index) const {
    if (index < 0 || index >= Count()) return -1;
    return colors_[static_cast<std::size_t>(index)].GetIntensity();
}

void CategoryList::LoadIcons() {
    std::vector<std::wstring> names;
    for (const Category& category : categories_) names.push_back(category.name);
    GetCategoryIcons().Load(Folder(), names);
    LoadColors();
}

void CategoryList::LoadColors() {
    colors_.assign(categories_.size(), {});
    for (int i = 0; i < Count(); ++i) {
        if (HasName(i)) colors_[static_cast<std::size_t>(i)] = ReadCategoryColor(At(i).name);
    }
}

bool CategoryList::SetIcon(int index, const std::wstring& source) {
    return HasName(index) && AssignCategoryIcon(Folder(), At(index).name, source);
}

void CategoryList::RemoveIcon(int index) {
    if (!HasName(index) || Folder().empty()) return;
    DeleteCategoryIcon(Folder(), At(index).name);
    for (int i = 0; i < Count(); ++i) {
        if (IsSameName(At(i).name, At(index).name)) GetCategoryIcons().Remove(i);
    }
}

bool CategoryList::SetColor(int index, COLORREF color) {
    if (!HasName(index)) return false;
    colors_[static_cast<std::size_t>(index)].SetColor(color);
    return WriteColor(index);
}

bool CategoryList::SetIntensity(int index, int percent) {
    if (!HasName(index)) return false;
    colors_[static_cast<std::size_t>(index)].SetIntensity(percent);
    return WriteColor(index);
}

bool CategoryList::WriteColor(int index) {
    const CategoryColor& color = colors_[static_cast<std::size_t>(index)];
    for (int i = 0; i < Count(); ++i) {
        if (IsSameName(At(i).name, At(index).name)) colors_[static_cast<std::size_t>(i)] = color;
    }
    return WriteCategoryColor(At(index).name, color);
}

std::optional<LRESULT> CategoryList::OnMessage(UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_DBNOTIFICATION || !lParam) return std::nullopt;
    const auto notification = reinterpret_cast<CENOTIFICATION*>(lParam);
    const CENOTIFICATION received = *notification;
    CENOTIFYREQUEST request = RequestFor(received.dwParam);
    CeFreeNotification(&request, notification);
    OnNotification(received);
    return 0;
}

// The list itself writes no records, so that every notification is of another's change.
void CategoryList::OnNotification(const CENOTIFICATION& notification) {
    if (notification.dwParam != kCategories) return;
    const std::optional<int> known = Find(notification.oid);
    switch (notification.uType) {
        case DB_CEOID_CREATED: {
            if (known) return;
            std::optional<Category> created = ReadRecord(notification.oid);
            if (!created) return;  // It has gone again.
            categories_.push_back(std::move(*created));
            LoadIcons();
            Tell(CategoryChange::kAdded, Count() - 1);
            return;
        }
        case DB_CEOID_CHANGED: {
            if (!known) return;
            std::optional<Category> changed = ReadRecord(notification.oid);
            if (!changed) return;
            categories_[static_cast<std::size_t>(*known)] = std::move(*changed);
            LoadIcons();  // By the name, which may be another one now.
            Tell(CategoryChange::kChanged, *known);
            return;
        }
        case DB_CEOID_RECORD_DELETED: {
            if (!known) return;
            Category& deleted = categories_[static_cast<std::size_t>(*known)];
            deleted.name.clear();
            deleted.record = Category::kDeleted;
            LoadIcons();
            Tell(CategoryChange::kRemoved, *known);
            return;
        }
    }
}

void CategoryList::Tell(CategoryChange change, int index) {
    // A listener may take itself, or another one, off the list.
    const std::vector<CategoryListener*> all = listeners_;
    for (CategoryListener* const listener : all) {
        if (std::find(listeners_.begin(), listeners_.end(), listener) != listeners_.end())
            listener->OnCategoryChange(change, index);
    }
}
