#pragma once

#include <array>
#include <string>
#include <utility>

// A contact's texts for its name; each may be empty.
struct ContactRecord {
    std::wstring title;
    std::wstring firstName;
    std::wstring middleName;
    std::wstring lastName;
    std::wstring suffix;
    std::wstring nickname;
    std::wstring fileAs;   // stands in for a name that has no other text
    std::wstring company;  // stands in where that is missing as well

    std::array<std::wstring, 4> formatted;  // by mode; empty until asked for
};

// The contact's name as it is listed: first name first (mode 0, and any that is none), last name
// first (1), as it is filed (2), in full with title and nickname (3).
std::wstring FormatContactName(ContactRecord& record, int mode);

// A contact of a preview: its name, and the other name that tells more of it.
class PreviewedContact {
  public:
    explicit PreviewedContact(ContactRecord record) : record_(std::move(record)) {}

    // The name in a mode. It is made once, whatever mode is asked for later, until `rebuild`, which
    // lets the alternative name be made anew as well.
    const std::wstring& Name(int mode, bool rebuild = false);
    const std::wstring& AlternativeName(int mode, bool rebuild = false);

  private:
    ContactRecord record_;
    std::wstring name_;
    std::wstring alternativeName_;
};
