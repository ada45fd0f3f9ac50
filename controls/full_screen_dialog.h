#pragma once

#include <memory>
#include <span>
#include <string>

#include "controls/dialog.h"
#include "controls/dialog_layout.h"
#include "controls/modal_windows.h"
#include "controls/template_layout.h"

// What every options page and full-screen dialog shares: Done button, menu bar, title band,
// lists filled from the resource library, translated texts, a layout that suits the screen however
// it is held or the input panel leaves of it, and scrolling where it is too low all the same.
class FullScreenDialog : public Dialog {
  public:
    // What the title band says.
    enum class Band { kTitleOfOwner, kOwnTitle, kNone };

    unsigned templateId() const { return templateId_; }

    // Runs the dialog modally over `parent`; the result is the dialog's own, 0 for cancelled.
    INT_PTR DoModal(HWND parent);

  protected:
    // `helpAnchor` is the dialog's section of the help file; empty for its contents.
    FullScreenDialog(unsigned templateId, std::wstring helpAnchor, Band band = Band::kTitleOfOwner);

    // The dialog's own initialisation, after the lists are filled and before texts are translated;
    // returns whether the first control shall have the focus.
    virtual bool OnInit() = 0;
    // Once the texts are translated: shows names that are the owner's or the device's, which must
    // not be, whatever a language file says.
    virtual void OnTranslated() {}
    // WM_COMMAND of a control or menu; true when handled.
    virtual bool OnCommand(int id, int code);
    // The menu of the library that the menu bar shows; 0 leaves it empty.
    virtual unsigned MenuBarId() const { return 0; }
    // Paints a preview, or an entry of a list that the dialog draws itself.
    virtual void OnDrawItem(const DRAWITEMSTRUCT&) {}
    // The controls that take what the others leave of the screen.
    virtual std::span<const Fill> Fills() const { return {}; }
    // A control that takes all below the title band and scrolls by itself; null where the dialog
    // scrolls.
    virtual HWND FillingControl() const { return nullptr; }
    virtual std::wstring BandTitle() const;

    // What is answered when a control holds what cannot be stored: comes to the front, says why,
    // goes there, and is false.
    bool Refuse(int control, const std::wstring& reason) const;
    // For a page behind others of its sheet.
    virtual void ComeToFront() const {}
    // Opens the help at the dialog's section.
    void ShowHelp() const;
    // Places the controls anew, after one came or went or its text became another.
    void LayOut();
    // Scrolls until a control shows. Controls that say in WM_COMMAND that they have the focus are
    // scrolled to anyway.
    void ScrollIntoView(HWND control);

    bool OnInitDialog() override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    bool IsPage() const;  // of a sheet
    void InitFullScreenDialog();
    void FillListsFromResource();
    // The window ends where the input panel begins.
    void FitAboveInputPanel();
    int BandHeight() const;  // pixels; 0 without a band
    void OnPaint();
    void UpdateScrollRange();
    void OnVerticalScroll(int request);
    void ScrollTo(int position);
    int ScrollPosition() const;

    unsigned templateId_;
    std::wstring helpAnchor_;
    Band band_;
    UINT scrollMessage_ = 0;
    int fullHeight_ = 0;     // pixels, of the window while the input panel is down
    bool fitting_ = false;   // it is being fitted above the panel
    int contentHeight_ = 0;  // pixels, unscrolled
    TemplateLayout layout_;
    bool initialised_ = false;
    std::unique_ptr<ModalWindow> modal_;
};
