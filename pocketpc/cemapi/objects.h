#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <vector>

#include "pocketpc/cemapi/trials.h"
#include "pocketpc/common/mail_store.h"
#include "pocketpc/include/cemapi.h"

// The store as it was when the session began, so that what its objects look for is found at once.
class SessionMail : public MailStore {
  public:
    explicit SessionMail(MailStore store);

    // In the order of the store.
    const std::vector<const MailNode*>& ChildrenOf(DWORD number) const;
    const std::vector<const MailNode*>& WithIdentifier(const std::vector<BYTE>& identifier) const;

  private:
    std::map<DWORD, std::vector<const MailNode*>> children_;
    std::map<std::vector<BYTE>, std::vector<const MailNode*>> identifiers_;
};

// Every object of the session holds it.
using MailSnapshot = std::shared_ptr<const SessionMail>;

// A value of a node for a property; one that the node lacks gets the type PT_ERROR. What it points
// to is a part of `buffer`. Texts and identifiers of tables are cut after 255 units.
void FillValue(const MailSnapshot& mail, const MailNode& node, ULONG tag, bool inTable,
               void* buffer, SPropValue& value);

// The identifier of a store's root folder, which no folder of the store has. That the root and the
// folder of PR_IPM_SUBTREE_ENTRYID are the same one is a guess.
std::vector<BYTE> RootIdentifier(const MailNode& account);

// The node of an identifier among those that `wanted` accepts; null when there is none.
const MailNode* FindEntry(const MailSnapshot& mail, ULONG size, LPENTRYID entry,
                          const std::function<bool(const MailNode&)>& wanted);

// The counting of references, which every object shares.
template <typename Interface>
class MapiObject : public Interface, private trials::Counted {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (!Supports(id)) return MAPI_E_INTERFACE_NOT_SUPPORTED;
        *object = this;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return InterlockedIncrement(&references_); }
    ULONG STDMETHODCALLTYPE Release() override {
        const LONG left = InterlockedDecrement(&references_);
        if (left == 0) delete this;
        return left;
    }

  protected:
    virtual ~MapiObject() = default;
    virtual bool Supports(REFIID id) const = 0;

  private:
    LONG references_ = 1;
};

// Each makes an object with one reference.
IMAPITable* MakeTable(MailSnapshot mail, std::vector<DWORD> nodes);
IMsgStore* MakeStore(MailSnapshot mail, DWORD account);
// A folder, or with `account` as the node the root folder of its store.
IMAPIFolder* MakeFolder(MailSnapshot mail, DWORD node);

// What OpenEntry does within one account. Its documentation says that the identifier cannot be
// null; what it returns then is a guess. A trial lets null open the root folder.
HRESULT OpenEntryOf(const MailSnapshot& mail, DWORD account, ULONG size, LPENTRYID entry, LPCIID id,
                    ULONG* type, LPUNKNOWN* object);

// Whether a caller's wish for an interface is one for these.
bool IsOneOf(LPCIID id, std::initializer_list<const IID*> ids);
