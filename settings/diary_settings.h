#pragma once

#include <cstdint>

#include "settings/display_pattern.h"

// The list settings that several pages share. A page calls Load before it shows some of them, and
// after changing its own calls Save, which writes them all.
class CDiarySettings {
  public:
    virtual ~CDiarySettings() = default;

    void Load();
    void Save() const;

    DisplayPattern taskPattern;
    std::int32_t taskShowCheckbox = 0;
    std::int32_t taskIndent = 0;
    std::int32_t taskPlacement = 0;  // where a task of several days appears in the calendar: 0..3
    std::int32_t weatherGroup = 0;
    std::int32_t todayGroup = 0;
    std::int32_t groupOffset = 0;
    std::int32_t groupSpan = 0;
    DisplayPattern appointmentPattern;
    std::int32_t appointmentSubjectStyle = 0;
    std::int32_t appointmentIndent = 0;
    std::int32_t appointmentLocation = 0;
    std::int32_t statusBar = 0;
    std::int32_t stripeDrawCounter = 0;
    std::int32_t stripeShowCollapseIcon = 0;
    std::int32_t stripeHideEmpty = 0;
    std::int32_t startTimeOnly = 0;
    std::int32_t markConflicting = 0;
    std::int32_t contactIndent = 0;
    std::int32_t noteIndent = 0;
    std::int32_t contactDisplay = 0;
    std::int32_t contactSearchCompany = 0;
    std::int32_t contactOneTap = 0;
    std::int32_t contactTextForPhotos = 0;
    std::int32_t contactGroupCompanyNoCase = 0;
    DisplayPattern contactPattern;
    std::int32_t noteShowSize = 0;
    std::int32_t noteShowTime = 0;
    std::int32_t emailShowEmptyAccounts = 0;
    std::int32_t emailOnlyUnread = 0;
    std::int32_t emailCounterStyle = 0;
    std::int32_t emailShowSize = 0;
    std::int32_t emailConfirmDeletion = 0;
    std::int32_t stripeStyle = 0;
    std::int32_t oneClick = 0;
    std::int32_t doubleClick = 0;
    std::int32_t phatNotes = 0;
    std::int32_t noteType0 = 0;
    std::int32_t noteType1 = 0;
    std::int32_t noteType2 = 0;
    std::int32_t noteType3 = 0;
    std::int32_t noteType4 = 0;
    std::int32_t noteType5 = 0;
    std::int32_t noteType6 = 0;
    std::int32_t tasksAllCategories = 0;
    std::int32_t contactsAllCategories = 0;
    std::int32_t specialPeriod = 0;
    std::int32_t collapseButToday = 0;
    std::int32_t contactAddressMode = 0;
    std::int32_t keypadNoLanguageSwitch = 0;
    std::int32_t keypadNoBackspace = 0;
    std::int32_t doubleTapOnScrollButton = 0;
    std::int32_t textOffset = 0;  // pixels
};

// The one object of the process, loaded by the first call.
CDiarySettings& GetDiarySettings();
