#pragma once

#include "base/owned_handle.h"
#include "controls/full_screen_dialog.h"

// What the program is and which version of it runs.
class AboutDialog : public FullScreenDialog {
  public:
    AboutDialog();

  protected:
    bool OnInit() override;

  private:
    OwnedIcon icon_;
};
