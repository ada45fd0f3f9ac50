#pragma once

#include "app/sheets/options_page.h"

// How the messages tab lists and opens mail.
class MessagesCommonPage : public OptionsPage {
  public:
    MessagesCommonPage();
};
