#pragma once

#include <prsht.h>

#include <memory>
#include <optional>
#include <string>

#include "app/sheets/page_description.h"
#include "controls/full_screen_dialog.h"

// One page of an options sheet, which shows and stores the rows of its description. What does not
// fit a row a page adds by overriding OnLoad, OnSave and OnUpdate.
class OptionsPage : public FullScreenDialog, protected PageControls {
  public:
    // The description must outlive the page.
    explicit OptionsPage(const PageDescription& description);

    // The record by which a property sheet creates the page, which must outlive the sheet; null
    // when the resource library lacks its template.
    HPROPSHEETPAGE CreateHandle();

  protected:
    virtual bool OnSetActive() { return true; }
    // Shows what others have stored meanwhile, but for what the user has changed here.
    void RefreshRows();
    // Whether what the page holds can be stored. All pages of the sheet are asked before the first
    // one stores; false keeps the sheet open.
    virtual bool OnCheck() { return true; }
    // Called after the rows are loaded, and after they are stored but before the shared settings
    // are.
    virtual void OnLoad(PageValues&) {}
    virtual void OnSave(PageValues&) {}
    // Called when all is loaded and after each click and choice, when the rows are enabled anew.
    virtual void OnUpdate() {}
    // WM_NOTIFY of a control.
    virtual std::optional<INT_PTR> OnControlNotification(const NMHDR&) { return std::nullopt; }

    void ComeToFront() const override;
    std::span<const Fill> Fills() const override { return fills_; }
    bool OnInit() override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    bool IsChecked(int control) const override;
    void SetChecked(int control, bool checked) override;
    void Enable(int control, bool enabled) override;
    void Remove(int control) override;
    void AddItem(int control, unsigned label, std::int32_t value) override;
    void AddItem(int control, const std::wstring& text, std::int32_t value);
    int Selection(int control) const override;
    void SetSelection(int control, int index) override;
    int ItemCount(int control) const override;
    std::int32_t ItemValue(int control, int index) const override;
    void SetItemValue(int control, int index, std::int32_t value) override;
    std::wstring ItemText(int control, int index) const override;
    // The entry of a name; -1 when there is none.
    int FindItem(int control, const std::wstring& name) const;

  private:
    std::optional<INT_PTR> OnPageNotification(const NMHDR& header);
    LRESULT OnApply();
    void Store();

    PageRows rows_;
    std::span<const Fill> fills_;
    bool ownIsUnread_ = false;         // OnLoad could not read all; then nothing of that is stored
    HPROPSHEETPAGE handle_ = nullptr;  // the sheet's
};

// For descriptions: makes a page of a class of its own.
template <typename Page>
std::unique_ptr<OptionsPage> MakePage(const PageDescription& description) {
    return std::make_unique<Page>(description);
}

// The page that a description describes.
std::unique_ptr<OptionsPage> MakeDescribedPage(const PageDescription& description);
