#pragma once

// The pictures of the item icon strip, from its top. A skin has them all, in this order; their
// names, in lower case, are those of the drawings in skins/shapes/icons.svg.
enum class ItemIcon {
    kAppointment,
    kAllDay,
    kReminder,
    kRecurrence,
    kPrivate,
    kAttendees,
    kImportanceHigh,
    kImportanceLow,
    kNote,
    kCategory,
    kTaskOpen,
    kTaskDone,
    kTaskOverdue,
    kContact,
    kCompany,
    kPhone,
    kMobile,
    kEmail,
    kBirthday,
    kAnniversary,
    kTransaction,
    kNoteInk,
    kNoteVoice,
    kPhatNotes,
    kPhatPad,
    kMessageUnread,
    kMessageRead,
    kMessageReplied,
    kMessageSms,
    kMessageMms,
    kFolder,
    kInbox,
    kOutbox,
    kSent,
    kDrafts,
    kDeleted,
    kToday,
    kWeather,
    kExpanded,   // the mark of a group that shows its items: a tap collapses it
    kCollapsed,  // and of one that hides them
};
inline constexpr int kItemIconCount = 40;

// The parts of the scroll bar strip, from its top. The thumb and the track are
// stretched by repeating the row in their middle.
enum class ScrollBarPart { kUp, kDown, kThumb, kTrack };
inline constexpr int kScrollBarPartCount = 4;

// The tab icons, from the left: calendar, tasks, contacts, notes, messages, special events.
inline constexpr int kTabIconCount = 6;
