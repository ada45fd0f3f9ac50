#pragma once

#include "controls/full_screen_dialog.h"
#include "controls/owned_handle.h"

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
