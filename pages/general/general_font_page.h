#pragma once

#include "app/sheets/options_page.h"
#include "appearance/drawing/fonts.h"

// The font of the lists.
class GeneralFontPage : public OptionsPage {
  public:
    GeneralFontPage();

  protected:
    void OnLoad(PageValues& values) override;
    void OnSave(PageValues& values) override;
    void OnUpdate() override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;
    bool OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void FillFaces();
    void ShowFont();
    void FollowSystem();

    ListFontSettings current_;
    OwnedFont preview_;
    UINT metricsMessage_ = 0;
};
