#pragma once

#include "base/owned_handle.h"
#include "controls/full_screen_dialog.h"

// What the program is and which version of it runs.
class AboutDialog : public FullScreenDialog {
  public:
    AboutDialog();

  protected:
    bool OnInit() override;
    void OnHelp() override;
    int BandHeight() const override { return 0; }

  private:
    OwnedIcon icon_;
};
