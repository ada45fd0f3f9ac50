#pragma once

#include "app/sheets/page_description.h"

extern const PageDescription kMessagesCommonPage;
extern const PageDescription kMessagesFilterPage;
