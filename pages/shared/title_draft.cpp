#include "pages/shared/title_draft.h"

#include <optional>

#include "settings/diary_settings.h"

namespace {

std::optional<TitleDraft> draft;

}  // namespace

TitleDraft& GetTitleDraft() {
    if (!draft) {
        const CDiarySettings& shared = GetDiarySettings();
        draft = {shared.taskPattern, shared.appointmentPattern, shared.contactPattern};
    }
    return *draft;
}

void StoreTitleDraft() {
    CDiarySettings& shared = GetDiarySettings();
    const TitleDraft& edited = GetTitleDraft();
    shared.taskPattern = edited.task;
    shared.appointmentPattern = edited.appointment;
    shared.contactPattern = edited.contact;
}

void ForgetTitleDraft() { draft.reset(); }
