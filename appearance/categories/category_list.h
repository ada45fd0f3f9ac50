#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "appearance/drawing/category_color.h"
#include "controls/window.h"
#include "pages/stores/database_layer.h"

class DatabaseRecord;

// A category of the device's.
struct Category {
    // Of one whose record was deleted. It keeps its place without a name, so that the other
    // categories keep theirs.
    static constexpr CEOID kDeleted = static_cast<CEOID>(-1);

    std::wstring name;  // empty when the record is malformed
    CEOID record = 0;
    std::vector<std::uint8_t> identifier;     // of newer devices: the record's own one
    std::array<std::uint32_t, 4> flags = {};  // as the record has them
    std::uint32_t number = 0;                 // property 3; of older devices the identifier
};

enum class CategoryChange { kAdded, kRemoved, kChanged };

// Is told of changes that any program made to the device's categories.
class CategoryListener {
  public:
    virtual void OnCategoryChange(CategoryChange change, int index) = 0;

  protected:
    ~CategoryListener() = default;
};

// The device's categories in the database's order, with their icons and colours. It hears of
// changes through a hidden window of its own and follows them. Icons and colours are filed by the
// category's name, so that a category without a name has none, and equal names share them.
class CategoryList : public Window {
  public:
    // The process's one; opens the databases and loads everything on first use. When they cannot
    // be opened it is empty.
    static CategoryList& Instance();
    // Loads icons and colours anew if it was loaded.
    static void Reload();
    ~CategoryList() override;

    int Count() const { return static_cast<int>(categories_.size()); }
    // For indices from 0 to Count() - 1.
    const Category& At(int index) const { return categories_[static_cast<std::size_t>(index)]; }

    // The icon, whose colour kIconTransparentColor is not painted; null for none. Stays the list's.
    HBITMAP GetIcon(int index);
    // kNoColor for none and out of range.
    COLORREF GetColor(int index) const;
    // Percent; -1 out of range.
    int GetIntensity(int index) const;

    // Load icons and colours, or colours alone, anew.
    void LoadIcons();
    void LoadColors();

    // Copies a bitmap file to be the category's icon; the caller then loads the icons.
    bool SetIcon(int index, const std::wstring& source);
    void RemoveIcon(int index);
    // Are written at once; false out of range and when that fails.
    bool SetColor(int index, COLORREF color);
    bool SetIntensity(int index, int percent);

    // A listener is to be removed before it goes.
    void AddListener(CategoryListener* listener) { listeners_.push_back(listener); }
    void RemoveListener(CategoryListener* listener) { std::erase(listeners_, listener); }

  protected:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    CategoryList();

    CENOTIFYREQUEST RequestFor(DWORD database) const;
    DatabaseHandle Open(const wchar_t* name, DWORD database) const;
    std::optional<Category> ReadRecord(CEOID record) const;
    bool HasName(int index) const;
    std::optional<int> Find(CEOID record) const;
    const std::wstring& Folder();
    bool WriteColor(int index);

    void OnNotification(const CENOTIFICATION& notification);
    void Tell(CategoryChange change, int index);

    DatabaseHandle database_;
    DatabaseHandle associations_;
    std::vector<Category> categories_;
    std::vector<CategoryColor> colors_;
    std::wstring folder_;  // of the icons; found on first use
    std::vector<CategoryListener*> listeners_;
};
