#include "settings/contact_name.h"

#include <iterator>

namespace {

constexpr int kLastNameFirst = 1, kAsFiled = 2, kInFull = 3;

void Append(std::wstring& name, const std::wstring& part) {
    if (!name.empty() && !part.empty()) name += L' ';
    name += part;
}

std::wstring FirstNameFirst(const ContactRecord& record) {
    std::wstring name = record.firstName;
    Append(name, record.middleName);
    Append(name, record.lastName);
    Append(name, record.suffix);
    return name;
}

std::wstring LastNameFirst(const ContactRecord& record) {
    if (record.firstName.empty()) {
        return record.lastName.empty() ? record.company : record.lastName;
    }
    std::wstring name = record.firstName;
    Append(name, record.middleName);
    return record.lastName.empty() ? name : record.lastName + L", " + name;
}

std::wstring InFull(const ContactRecord& record) {
    std::wstring name = record.title;
    Append(name, record.firstName);
    if (name.empty() || record.nickname.empty()) {
        name += record.nickname;
    } else {
        name += L" \"" + record.nickname + L"\"";
    }
    Append(name, record.middleName);
    Append(name, record.lastName);
    Append(name, record.suffix);
    return name;
}

}  // namespace

std::wstring FormatContactName(ContactRecord& record, int mode) {
    if (mode < 0 || mode >= static_cast<int>(record.formatted.size())) mode = 0;
    std::wstring& name = record.formatted[static_cast<std::size_t>(mode)];
    if (!name.empty()) return name;
    switch (mode) {
        case kLastNameFirst: name = LastNameFirst(record); break;
        case kAsFiled:
            name = record.fileAs.empty() ? FormatContactName(record, 0) : record.fileAs;
            break;
        case kInFull: name = InFull(record); break;
        default: name = FirstNameFirst(record); break;
    }
    if (name.empty()) name = record.fileAs;
    if (name.empty()) name = record.company;
    return name;
}

const std::wstring& PreviewedContact::Name(int mode, bool rebuild) {
    if (rebuild) alternativeName_.clear();
    if (rebuild || name_.empty()) name_ = FormatContactName(record_, mode);
    return name_;
}

const std::wstring& PreviewedContact::AlternativeName(int mode, bool rebuild) {
    constexpr int kAlternatives[] = {kAsFiled, kAsFiled, kLastNameFirst, kInFull};
    if (rebuild || alternativeName_.empty()) {
        const bool known = mode >= 0 && mode < static_cast<int>(std::size(kAlternatives));
        alternativeName_ = FormatContactName(record_, kAlternatives[known ? mode : 0]);
    }
    return alternativeName_;
}
