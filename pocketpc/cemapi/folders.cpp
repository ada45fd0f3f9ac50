// Message stores, which are the accounts, and folders.
#include <algorithm>
#include <cstring>

#include "pocketpc/cemapi/objects.h"

namespace {

// The properties of an account or a folder.
template <typename Interface>
class Properties : public MapiObject<Interface> {
  public:
    Properties(MailSnapshot mail, DWORD node) : mail_(std::move(mail)), node_(node) {}

    // The flags are documented to be ignored; texts are wide only.
    HRESULT STDMETHODCALLTYPE GetProps(LPSPropTagArray tags, ULONG, ULONG* count,
                                       LPSPropValue* values) override {
        if (const HRESULT failure = trials::NextCall()) return failure;
        if (!tags || !count || !values) return MAPI_E_INVALID_PARAMETER;
        void* memory = nullptr;
        const HRESULT result =
            MAPIAllocateBuffer(static_cast<ULONG>(tags->cValues * sizeof(SPropValue)), &memory);
        if (FAILED(result)) return result;
        *values = static_cast<SPropValue*>(memory);
        *count = tags->cValues;
        bool lacking = false;
        for (ULONG i = 0; i < tags->cValues; ++i) {
            FillValue(mail_, node(), tags->aulPropTag[i], false, memory, (*values)[i]);
            lacking |= PROP_TYPE((*values)[i].ulPropTag) == PT_ERROR;
        }
        return lacking ? MAPI_W_ERRORS_RETURNED : S_OK;
    }

    HRESULT STDMETHODCALLTYPE GetLastError(HRESULT, ULONG, MAPIERROR**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SaveChanges(ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetPropList(ULONG, LPSPropTagArray*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OpenProperty(ULONG, LPCIID, ULONG, ULONG, LPUNKNOWN*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetProps(ULONG, LPSPropValue, SPropProblemArray**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE DeleteProps(LPSPropTagArray, SPropProblemArray**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CopyTo(ULONG, LPCIID, LPSPropTagArray, ULONG, IMAPIProgress*, LPCIID,
                                     LPVOID, ULONG, SPropProblemArray**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CopyProps(LPSPropTagArray, ULONG, IMAPIProgress*, LPCIID, LPVOID,
                                        ULONG, SPropProblemArray**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetNamesFromIDs(LPSPropTagArray*, LPGUID, ULONG, ULONG*,
                                              MAPINAMEID***) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsFromNames(ULONG, MAPINAMEID**, ULONG,
                                              LPSPropTagArray*) override {
        return E_NOTIMPL;
    }

  protected:
    const MailSnapshot& mail() const { return mail_; }
    const MailNode& node() const { return *mail_->Find(node_); }

  private:
    MailSnapshot mail_;
    DWORD node_;
};

class Store : public Properties<IMsgStore> {
  public:
    using Properties::Properties;

    HRESULT STDMETHODCALLTYPE OpenEntry(ULONG size, LPENTRYID entry, LPCIID id, ULONG, ULONG* type,
                                        LPUNKNOWN* object) override {
        if (const HRESULT failure = trials::NextCall()) return failure;
        return OpenEntryOf(mail(), node().number, size, entry, id, type, object);
    }

    HRESULT STDMETHODCALLTYPE Advise(ULONG, LPENTRYID, ULONG, IMAPIAdviseSink*, ULONG*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Unadvise(ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CompareEntryIDs(ULONG, LPENTRYID, ULONG, LPENTRYID, ULONG,
                                              ULONG*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetReceiveFolder(LPTSTR, ULONG, ULONG, LPENTRYID) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetReceiveFolder(LPTSTR, ULONG, ULONG*, LPENTRYID*,
                                               LPTSTR*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetReceiveFolderTable(ULONG, LPMAPITABLE*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE StoreLogoff(ULONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AbortSubmit(ULONG, LPENTRYID, ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetOutgoingQueue(ULONG, LPMAPITABLE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetLockState(IMessage*, ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE FinishedMsg(ULONG, ULONG, LPENTRYID) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE NotifyNewMail(void*) override { return E_NOTIMPL; }

  protected:
    bool Supports(REFIID id) const override {
        return IsOneOf(&id, {&IID_IUnknown, &IID_IMAPIProp, &IID_IMsgStore});
    }
};

class Folder : public Properties<IMAPIFolder> {
  public:
    using Properties::Properties;

    HRESULT STDMETHODCALLTYPE GetHierarchyTable(ULONG, LPMAPITABLE* table) override {
        if (const HRESULT failure = trials::NextCall()) return failure;
        if (!table) return MAPI_E_INVALID_PARAMETER;
        std::vector<DWORD> children;
        for (const MailNode* child : mail()->ChildrenOf(node().number)) {
            children.push_back(child->number);
        }
        if (children.empty()) return MAPI_E_NO_SUPPORT;
        *table = MakeTable(mail(), std::move(children));
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE OpenEntry(ULONG size, LPENTRYID entry, LPCIID id, ULONG, ULONG* type,
                                        LPUNKNOWN* object) override {
        if (const HRESULT failure = trials::NextCall()) return failure;
        const MailNode* account = mail()->AccountOf(node());
        if (!account) return MAPI_E_NOT_FOUND;
        return OpenEntryOf(mail(), account->number, size, entry, id, type, object);
    }

    HRESULT STDMETHODCALLTYPE GetContentsTable(ULONG, LPMAPITABLE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetSearchCriteria(SRestriction*, ENTRYLIST*, ULONG) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetSearchCriteria(ULONG, SRestriction**, ENTRYLIST**,
                                                ULONG*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateMessage(LPCIID, ULONG, IMessage**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CopyMessages(ENTRYLIST*, LPCIID, LPVOID, ULONG, IMAPIProgress*,
                                           ULONG) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE DeleteMessages(ENTRYLIST*, ULONG, IMAPIProgress*, ULONG) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CreateFolder(ULONG, LPTSTR, LPTSTR, LPCIID, ULONG,
                                           IMAPIFolder**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CopyFolder(ULONG, LPENTRYID, LPCIID, LPVOID, LPTSTR, ULONG,
                                         IMAPIProgress*, ULONG) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE DeleteFolder(ULONG, LPENTRYID, ULONG, IMAPIProgress*,
                                           ULONG) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetReadFlags(ENTRYLIST*, ULONG, IMAPIProgress*, ULONG) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetMessageStatus(ULONG, LPENTRYID, ULONG, ULONG*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetMessageStatus(ULONG, LPENTRYID, ULONG, ULONG, ULONG*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SaveContentsSort(SSortOrderSet*, ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EmptyFolder(ULONG, IMAPIProgress*, ULONG) override {
        return E_NOTIMPL;
    }

  protected:
    bool Supports(REFIID id) const override {
        if (IsOneOf(&id, {&IID_IUnknown, &IID_IMAPIProp})) return true;
        return node().kind != MailKind::kMessage &&
               IsOneOf(&id, {&IID_IMAPIContainer, &IID_IMAPIFolder});
    }
};

}  // namespace

IMsgStore* MakeStore(MailSnapshot mail, DWORD account) {
    return new Store(std::move(mail), account);
}

IMAPIFolder* MakeFolder(MailSnapshot mail, DWORD node) { return new Folder(std::move(mail), node); }

HRESULT OpenEntryOf(const MailSnapshot& mail, DWORD account, ULONG size, LPENTRYID entry, LPCIID id,
                    ULONG* type, LPUNKNOWN* object) {
    const bool null = !size || !entry;
    if (!type || !object || (null && !trials::NullEntry())) return MAPI_E_INVALID_PARAMETER;
    const MailNode* root = mail->Find(account);
    const std::vector<BYTE> rootId = RootIdentifier(*root);
    const bool isRoot = null || (size == rootId.size() && !memcmp(entry, rootId.data(), size));
    const MailNode* node = isRoot ? root : FindEntry(mail, size, entry, [&](const MailNode& one) {
        return one.parent && mail->AccountOf(one) == root;
    });
    if (!node) return MAPI_E_NOT_FOUND;
    IMAPIFolder* folder = MakeFolder(mail, node->number);
    const HRESULT result =
        folder->QueryInterface(id ? *id : IID_IUnknown, reinterpret_cast<void**>(object));
    folder->Release();
    if (FAILED(result)) return result;
    *type = node->kind == MailKind::kMessage ? MAPI_MESSAGE : MAPI_FOLDER;
    return S_OK;
}
