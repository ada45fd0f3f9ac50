#include "settings/diary_settings.h"

#include "settings/device.h"
#include "settings/settings_key.h"

namespace {

struct SharedPattern {
    DisplayPattern CDiarySettings::*member;
    const wchar_t* name;
    const wchar_t* defaultPattern;
};

constexpr SharedPattern kPatterns[] = {
    {&CDiarySettings::taskPattern, L"CurTaskPattern", L"p3nqrsc"},
    {&CDiarySettings::appointmentPattern, L"CurAppPattern", L"n3rqsca"},
    {&CDiarySettings::contactPattern, L"CurContactPattern", L"c1n"},
};

struct SharedNumber {
    enum class Default { kFixed, kOnPhone };  // kOnPhone: 1 on a device with a phone, else 0
    enum class Access { kReadWrite, kReadOnly };

    std::int32_t CDiarySettings::*member;
    const wchar_t* name;
    std::int32_t defaultValue;
    Default rule = Default::kFixed;
    Access access = Access::kReadWrite;
};

// In the order of loading, since a first read creates the value.
constexpr SharedNumber kNumbers[] = {
    {&CDiarySettings::taskShowCheckbox, L"Task_ShowCheckbox", 1},
    {&CDiarySettings::taskIndent, L"Task_MakeDateIndent", 1},
    {&CDiarySettings::appointmentSubjectStyle, L"App_SubjectStyle", 3},
    {&CDiarySettings::appointmentIndent, L"App_MakeDateIndent", 1},
    {&CDiarySettings::weatherGroup, L"AppGroup_Weather", 1},
    {&CDiarySettings::todayGroup, L"AppGroup_Today", 1},
    {&CDiarySettings::groupOffset, L"AppGroup_Offset", 1},
    {&CDiarySettings::groupSpan, L"AppGroup_Span", 1},
    {&CDiarySettings::taskPlacement, L"App_TaskShowMultiday", 3},
    {&CDiarySettings::statusBar, L"App_StatusBar", 1},
    {&CDiarySettings::appointmentLocation, L"App_Location", 1},
    {&CDiarySettings::startTimeOnly, L"App_StartOnly", 0},
    {&CDiarySettings::markConflicting, L"App_MarkConflicting", 1},
    {&CDiarySettings::collapseButToday, L"App_CollapseButToday", 1},
    {&CDiarySettings::stripeStyle, L"FoldingStripeStyle", 2},
    {&CDiarySettings::stripeDrawCounter, L"FoldingStripeDrawCounter", 1},
    {&CDiarySettings::stripeShowCollapseIcon, L"FoldingStripeShowCollapseIcon", 1},
    {&CDiarySettings::stripeHideEmpty, L"FoldingStripeDontShowNull", 1},
    {&CDiarySettings::oneClick, L"OneClick", 0},
    {&CDiarySettings::doubleClick, L"DoubleClick", 2},
    {&CDiarySettings::contactIndent, L"ContLeftIdent", 1},
    {&CDiarySettings::contactDisplay, L"ContDisplay", 1},
    {&CDiarySettings::contactSearchCompany, L"ContSearchCompany", 0},
    {&CDiarySettings::contactOneTap, L"ContactsOneTap", 3},
    {&CDiarySettings::contactTextForPhotos, L"ContactShowTextForPhotos", 0},
    {&CDiarySettings::contactGroupCompanyNoCase, L"ContactGroupCompanyNoCase", 1},
    {&CDiarySettings::contactAddressMode, L"ContPreview_ShowAddressMode", 0,
     SharedNumber::Default::kOnPhone},
    {&CDiarySettings::noteShowSize, L"NoteDrawSize", 0},
    {&CDiarySettings::noteShowTime, L"NoteDrawTime", 1},
    {&CDiarySettings::noteIndent, L"NoteMakeIndent", 1},
    {&CDiarySettings::emailShowEmptyAccounts, L"EmailShowEmptyAccounts", 0},
    {&CDiarySettings::emailOnlyUnread, L"EmailsOnlyUnreaded", 0},
    {&CDiarySettings::emailCounterStyle, L"EmailCounterStyle", 0},
    {&CDiarySettings::emailShowSize, L"EmailShowSize", 0},
    {&CDiarySettings::emailConfirmDeletion, L"EmailConfirmDeletion", 1},
    {&CDiarySettings::phatNotes, L"PhatNotesEnabled", 1},
    {&CDiarySettings::noteType0, L"NotesType0Enabled", 1},
    {&CDiarySettings::noteType1, L"NotesType1Enabled", 1},
    {&CDiarySettings::noteType2, L"NotesType2Enabled", 1},
    {&CDiarySettings::noteType3, L"NotesType3Enabled", 1},
    {&CDiarySettings::noteType4, L"NotesType4Enabled", 1},
    {&CDiarySettings::noteType5, L"NotesType5Enabled", 1},
    {&CDiarySettings::noteType6, L"NotesType6Enabled", 1},
    {&CDiarySettings::tasksAllCategories, L"ShowTasksInAllCategories", 0},
    {&CDiarySettings::contactsAllCategories, L"ShowContactsInAllCategories", 0},
    {&CDiarySettings::specialPeriod, L"SpecialPeriod", 0},
    {&CDiarySettings::keypadNoBackspace, L"PhoneKeyb_DisableBackspace", 0},
    {&CDiarySettings::keypadNoLanguageSwitch, L"PhoneKeyb_DisableLangSwitch", 1},
    {&CDiarySettings::doubleTapOnScrollButton, L"EnableDoubleTapOnScrollButton", 0},
    {&CDiarySettings::textOffset, L"dbgTextOffset", 4, SharedNumber::Default::kFixed,
     SharedNumber::Access::kReadOnly},
};

std::int32_t DefaultOf(const SharedNumber& number) {
    if (number.rule == SharedNumber::Default::kOnPhone) return IsPhoneDevice() ? 1 : 0;
    return number.defaultValue;
}

}  // namespace

void CDiarySettings::Load() {
    CSettingsKey key = OpenProductKey();
    for (const SharedPattern& pattern : kPatterns) {
        (this->*pattern.member).Parse(key.ReadString(pattern.name, pattern.defaultPattern));
    }
    for (const SharedNumber& number : kNumbers) {
        const auto defaultValue = static_cast<std::uint32_t>(DefaultOf(number));
        this->*number.member = static_cast<std::int32_t>(key.ReadDword(number.name, defaultValue));
    }
}

void CDiarySettings::Save() const {
    CSettingsKey key = OpenProductKey();
    for (const SharedPattern& pattern : kPatterns) {
        key.WriteString(pattern.name, (this->*pattern.member).Format().c_str());
    }
    for (const SharedNumber& number : kNumbers) {
        if (number.access == SharedNumber::Access::kReadOnly) continue;
        key.WriteDword(number.name, static_cast<std::uint32_t>(this->*number.member));
    }
}

CDiarySettings& GetDiarySettings() {
    static CDiarySettings* const settings = [] {
        static CDiarySettings instance;
        instance.Load();
        return &instance;
    }();
    return *settings;
}
