#pragma once

#include <windows.h>

#include <string>

#include "app/language/language_index.h"

// The texts of the program in the user's language. Every text that the user sees passes through
// here.
class LanguageTable {
  public:
    virtual ~LanguageTable() = default;

    // Reads the language file; a missing one is first written, with every text of the resource
    // library and no translation. False when it could be neither read nor written.
    bool Load(const std::wstring& path);

    // A string of the resource library, translated; empty when the library has none with this id.
    std::wstring LoadString(unsigned id) const;
    // The same not yet translated, for a window before TranslateWindow: a translation may itself be
    // a text that has another.
    static std::wstring LoadSource(unsigned id);
    std::wstring Translate(const std::wstring& text) const;

    // Translate a window and its direct children, the items of combo boxes among them; the buttons
    // and menus of a window's menu bar; a menu with its sub-menus.
    void TranslateWindow(HWND window) const;
    void TranslateMenuBar(HWND window) const;
    void TranslateMenu(HMENU menu) const;

  protected:
    // Creates a dialog of the library, for its texts to be listed; null when that fails.
    virtual HWND createDialog(HMODULE library, unsigned id, HWND parent) const;

  private:
    bool WriteTemplate(const std::wstring& path) const;

    LanguageIndex index_;
};

// The one table of the process.
LanguageTable& GetLanguageTable();
