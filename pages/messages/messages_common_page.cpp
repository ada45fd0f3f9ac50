#include "pages/messages/messages_pages.h"

namespace {

constexpr Row kRows[] = {
    rows::Index(IDC_MESSAGES_SORTING, settings::EmailSorting),
    rows::Index(IDC_MESSAGES_ONE_TAP, settings::EmailsOneTap),
    rows::Index(IDC_MESSAGES_COUNTER, &CDiarySettings::emailCounterStyle),
    rows::Check(IDC_MESSAGES_CONFIRM_DELETION, &CDiarySettings::emailConfirmDeletion),
    rows::Check(IDC_MESSAGES_READ_ON_PREVIEW, settings::MessagesSetAsReadedPreview),
    rows::Check(IDC_MESSAGES_ONLY_UNREAD, &CDiarySettings::emailOnlyUnread),
    rows::Check(IDC_MESSAGES_IN_CALENDAR, settings::MessagesInCalendar),
    rows::Check(IDC_MESSAGES_EMPTY_ACCOUNTS, &CDiarySettings::emailShowEmptyAccounts),
    rows::Check(IDC_MESSAGES_SIZE, &CDiarySettings::emailShowSize),
};

}  // namespace

// How the messages tab lists and opens mail.
constexpr PageDescription kMessagesCommonPage = {IDD_MESSAGES_COMMON, L"messages_common", kRows};
