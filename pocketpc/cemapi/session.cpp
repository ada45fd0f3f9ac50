// Logging on, and what a session opens.
#include "pocketpc/cemapi/objects.h"

namespace {

class Session : public MapiObject<ICEMAPISession> {
  public:
    Session() : mail_(std::make_shared<const SessionMail>(MailStore::Load())) { trials::Begin(); }
    ~Session() override { trials::End(); }

    HRESULT STDMETHODCALLTYPE GetMsgStoresTable(ULONG, LPMAPITABLE* table) override {
        if (const HRESULT failure = NextCall()) return failure;
        if (!table) return MAPI_E_INVALID_PARAMETER;
        std::vector<DWORD> accounts;
        for (const MailNode* account : mail_->ChildrenOf(0)) accounts.push_back(account->number);
        *table = MakeTable(mail_, std::move(accounts));
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE OpenMsgStore(ULONG, ULONG size, LPENTRYID entry, LPCIID id, ULONG,
                                           LPMDB* store) override {
        if (const HRESULT failure = NextCall()) return failure;
        if (!store) return MAPI_E_INVALID_PARAMETER;
        if (id && !IsOneOf(id, {&IID_IMsgStore})) return MAPI_E_INTERFACE_NOT_SUPPORTED;
        const MailNode* account =
            FindEntry(mail_, size, entry, [](const MailNode& node) { return !node.parent; });
        if (!account) return MAPI_E_NOT_FOUND;
        *store = MakeStore(mail_, account->number);
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE OpenEntry(ULONG size, LPENTRYID entry, LPCIID id, ULONG, ULONG* type,
                                        LPUNKNOWN* object) override {
        if (const HRESULT failure = NextCall()) return failure;
        const MailNode* node =
            FindEntry(mail_, size, entry, [](const MailNode& one) { return one.parent != 0; });
        const MailNode* account = node ? mail_->AccountOf(*node) : nullptr;
        if (!account) return MAPI_E_NOT_FOUND;
        return OpenEntryOf(mail_, account->number, size, entry, id, type, object);
    }

    HRESULT STDMETHODCALLTYPE Logoff(ULONG, ULONG, ULONG) override {
        if (const HRESULT failure = NextCall()) return failure;
        loggedOff_ = true;
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE GetLastError(HRESULT, ULONG, MAPIERROR**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE OpenAddressBook(ULONG, LPCIID, ULONG, IAddrBook**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE OpenProfileSection(MAPIUID*, LPCIID, ULONG, IProfSect**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetStatusTable(ULONG, LPMAPITABLE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CompareEntryIDs(ULONG, LPENTRYID, ULONG, LPENTRYID, ULONG,
                                              ULONG*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Advise(ULONG, LPENTRYID, ULONG, IMAPIAdviseSink*, ULONG*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Unadvise(ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE MessageOptions(ULONG, ULONG, LPTSTR, IMessage*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE QueryDefaultMessageOpt(LPTSTR, ULONG, ULONG*,
                                                     LPSPropValue*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE EnumAdrTypes(ULONG, ULONG*, LPTSTR**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryIdentity(ULONG*, LPENTRYID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetDefaultStore(ULONG, ULONG, LPENTRYID) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE AdminServices(ULONG, IMsgServiceAdmin**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE ShowForm(ULONG, LPMDB, LPMAPIFOLDER, LPCIID, ULONG, IMessage*, ULONG,
                                       ULONG, ULONG, ULONG, LPSTR) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE PrepareForm(LPCIID, IMessage*, ULONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateMsgStore(LPCWSTR, LPMDB*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DeleteMsgStore(ULONG, LPENTRYID) override { return E_NOTIMPL; }

  protected:
    bool Supports(REFIID id) const override {
        return IsOneOf(&id, {&IID_IUnknown, &IID_IMAPISession});
    }

  private:
    HRESULT NextCall() const {
        if (const HRESULT failure = trials::NextCall()) return failure;
        return loggedOff_ ? MAPI_E_END_OF_SESSION : S_OK;
    }

    MailSnapshot mail_;
    bool loggedOff_ = false;
};

}  // namespace

HRESULT WINAPI MAPIInitialize(LPVOID) {
    trials::Begin();
    const HRESULT failure = trials::NextCall();
    if (failure) trials::End();
    return failure;
}

void WINAPI MAPIUninitialize() { trials::End(); }

HRESULT WINAPI MAPILogonEx(ULONG, LPTSTR, LPTSTR, FLAGS, LPMAPISESSION* session) {
    if (!session) return MAPI_E_INVALID_PARAMETER;
    const auto made = new Session;
    if (const HRESULT failure = trials::NextCall()) {
        made->Release();
        return failure;
    }
    *session = made;
    return S_OK;
}
