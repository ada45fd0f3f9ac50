#include "pages/shared/title_draft.h"

#include "settings/diary_settings.h"

namespace {

void StoreChanges(const DisplayPattern& edited, DisplayPattern& stored, DisplayPattern& shared) {
    if (edited.mode != stored.mode) shared.mode = edited.mode;
    if (edited.before != stored.before || edited.after != stored.after) {
        shared.before = edited.before;
        shared.after = edited.after;
    }
    stored = edited;
}

}  // namespace

TitleDraft& SheetTitles::Draft() {
    if (!draft_) {
        const CDiarySettings& shared = GetDiarySettings();
        stored_ = {shared.taskPattern, shared.appointmentPattern, shared.contactPattern};
        draft_ = stored_;
        isKnown_ = !shared.HasUnreadPatterns();
    }
    return *draft_;
}

void SheetTitles::Store() {
    CDiarySettings& shared = GetDiarySettings();
    const TitleDraft& edited = Draft();
    if (!isKnown_) return;
    if (shared.HasUnreadPatterns()) {  // Defaults stand there for what the draft knows.
        shared.taskPattern = stored_.task;
        shared.appointmentPattern = stored_.appointment;
        shared.contactPattern = stored_.contact;
    }
    StoreChanges(edited.task, stored_.task, shared.taskPattern);
    StoreChanges(edited.appointment, stored_.appointment, shared.appointmentPattern);
    StoreChanges(edited.contact, stored_.contact, shared.contactPattern);
}
