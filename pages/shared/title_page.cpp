#include "pages/shared/title_page.h"

#include "resources/ids.h"

// Another page of the sheet may have changed the pattern meanwhile.
bool TitlePage::OnSetActive() {
    editor_.Show(Edited(), OfferedFields());
    OnUpdate();
    return true;
}

void TitlePage::OnLoad(PageValues&) { editor_.Attach(hwnd()); }

void TitlePage::OnSave(PageValues&) { titles_.Store(); }

void TitlePage::OnUpdate() { InvalidateRect(Item(IDC_TITLE_PREVIEW), nullptr, TRUE); }

bool TitlePage::OnCommand(int id, int code) {
    editor_.OnCommand(id, code);
    return OptionsPage::OnCommand(id, code);
}

std::optional<INT_PTR> TitlePage::OnControlNotification(const NMHDR& header) {
    if (editor_.OnNotify(header)) OnUpdate();
    return std::nullopt;
}
