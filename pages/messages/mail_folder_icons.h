#pragma once

#include "base/owned_handle.h"

// A picture for each MailFolderKind, in their order: the device's own, or the skin's where it has
// none.
OwnedImageList MailFolderIcons();
