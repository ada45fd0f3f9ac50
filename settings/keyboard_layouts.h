#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "settings/keyboard_layout.h"

// The keyboard layouts there are: those of the registry, and the built-in ones, which are written
// there when it lacks them. A layout keeps its address, by which it is known in tabs' lists.
class KeyboardLayouts {
  public:
    // Whether a layout of that name came with the program.
    static bool IsBuiltIn(const std::wstring& name);

    KeyboardLayouts();
    // Takes what the registry has got since: new layouts, and other texts of those that are here.
    void AddStored();
    virtual ~KeyboardLayouts() = default;
    KeyboardLayouts(const KeyboardLayouts&) = delete;
    KeyboardLayouts& operator=(const KeyboardLayouts&) = delete;

    int Count() const { return static_cast<int>(entries_.size()); }
    const std::wstring& NameAt(int position) const;
    // The layout at a position or of a name, which the registry's values match in any case of
    // letters. Its text is read when it is first asked for; null when that is no layout, or when
    // there is none of that name.
    const KeyboardLayout* At(int position);
    const KeyboardLayout* Find(const std::wstring& name);
    // Empty for a layout that is none of these.
    std::wstring NameOf(const KeyboardLayout* layout) const;

    // A tab's list as it is stored; `tab` is the tab's name in the registry, such as "Notes".
    OfferedLayouts LoadOffered(const std::wstring& tab);
    // Whether a list is short enough to be stored.
    bool CanStore(const OfferedLayouts& offered) const;
    // Stores nothing of a list that is too long, or that could not be loaded whole.
    bool SaveOffered(const std::wstring& tab, const OfferedLayouts& offered) const;

  private:
    struct Entry {
        std::wstring name;
        std::unique_ptr<KeyboardLayout> layout;  // null until its text is read
    };
    int PositionOf(const std::wstring& name) const;  // -1: not there
    std::wstring NamesOf(const OfferedLayouts& offered) const;

    std::vector<Entry> entries_;
    bool hasUnread_ = false;               // of what is stored; it is tried again
    std::set<std::wstring> partlyLoaded_;  // tabs whose lists lack what could not be read
};

// The one collection of the process, built by the first call.
KeyboardLayouts& GetKeyboardLayouts();
// Adds to it what is stored now, if it was built.
void AddStoredKeyboardLayouts();
