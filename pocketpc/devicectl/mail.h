#pragma once

#include <string>
#include <vector>

#include "pocketpc/common/mail_store.h"

// A line for each account and folder: its number, its kind, and its name with its path.
std::vector<std::wstring> ListMail();

bool HasAccount(const MailStore& mail, const std::wstring& name);

// Adds the last folder of a path, whose parts are separated by backslashes. False when the folders
// before it are not there.
bool AddMailFolder(MailStore& mail, DWORD account, const std::wstring& path, MailKind kind);

// Adds accounts named "Account 1" and so on, as far as they are not there, each with the special
// folders and others within each other up to so many in all.
void AddManyAccounts(MailStore& mail, DWORD count, DWORD folders);
