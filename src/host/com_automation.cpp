#ifdef _WIN32

#include "host/com_automation.h"

#include "util/wide_text.h"

// windows.h first: the COM headers rely on what it declares.
#include <windows.h>

#include <objbase.h>
#include <oleauto.h>

#include <charconv>
#include <cstdint>
#include <string>

namespace huebase {

namespace {

std::string utf8FromBstr(BSTR text) {
    const int length = static_cast<int>(SysStringLen(text));
    if (length == 0)
        return {};
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, length, utf8.data(), size, nullptr, nullptr);
    return utf8;
}

// A VARIANT that is cleared when it goes.
struct VariantHolder {
    VARIANT value;
    VariantHolder() { VariantInit(&value); }
    ~VariantHolder() { VariantClear(&value); }
    VariantHolder(const VariantHolder&) = delete;
    VariantHolder& operator=(const VariantHolder&) = delete;
};

void check(HRESULT result, const std::string& what) {
    if (SUCCEEDED(result))
        return;
    char hex[16];
    const auto end =
        std::to_chars(hex, hex + sizeof hex, static_cast<std::uint32_t>(result), 16).ptr;
    throw AutomationError(what + " failed (HRESULT 0x" + std::string(hex, end) + ")");
}

// The IDispatch of an interface pointer, with a reference of its own, or
// nullptr when it has none.
IDispatch* dispatchOf(IUnknown* unknown) {
    if (unknown == nullptr)
        return nullptr;
    IDispatch* dispatch = nullptr;
    if (FAILED(unknown->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&dispatch))))
        return nullptr;
    return dispatch;
}

class ComObject : public AutomationObject {
public:
    // Takes over one reference of the interface.
    explicit ComObject(IDispatch* dispatch) : dispatch_(dispatch) {}
    ~ComObject() override { dispatch_->Release(); }
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    std::shared_ptr<AutomationObject> objectProperty(const std::string& name) override {
        VariantHolder result;
        invoke(idOf(name), DISPATCH_PROPERTYGET, nullptr, 0, &result.value, name);
        return objectFrom(result.value, name);
    }

    std::string textProperty(const std::string& name) override {
        VariantHolder result;
        invoke(idOf(name), DISPATCH_PROPERTYGET, nullptr, 0, &result.value, name);
        check(VariantChangeType(&result.value, &result.value, 0, VT_BSTR), name + " as text");
        return utf8FromBstr(V_BSTR(&result.value));
    }

    void forEachItem(const std::function<bool(AutomationObject& item)>& visit) override {
        if (IEnumVARIANT* items = enumerator()) {
            walk(items, visit);
            return;
        }
        walkByIndex(visit);
    }

    void call(const std::string& method, const std::string& argument) override {
        const std::wstring wide = wideFromUtf8(argument);
        VariantHolder text;
        V_VT(&text.value) = VT_BSTR;
        V_BSTR(&text.value) = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
        if (V_BSTR(&text.value) == nullptr)
            throw AutomationError("out of memory for the argument of " + method);
        VariantHolder result;
        invoke(idOf(method), DISPATCH_METHOD, &text.value, 1, &result.value, method);
    }

private:
    DISPID idOf(const std::string& name) {
        std::wstring wide = wideFromUtf8(name);
        LPOLESTR names[] = {wide.data()};
        DISPID id = DISPID_UNKNOWN;
        check(dispatch_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id),
              "looking up " + name);
        return id;
    }

    void invoke(DISPID id, WORD flags, VARIANTARG* arguments, UINT count, VARIANT* result,
                const std::string& what) {
        DISPPARAMS parameters{arguments, nullptr, count, 0};
        EXCEPINFO exception{};
        UINT argumentError = 0;
        const HRESULT hr = dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                                             result, &exception, &argumentError);
        SysFreeString(exception.bstrSource);
        SysFreeString(exception.bstrDescription);
        SysFreeString(exception.bstrHelpFile);
        check(hr, what);
    }

    static std::shared_ptr<AutomationObject> objectFrom(VARIANT& value, const std::string& what) {
        IDispatch* dispatch = nullptr;
        if (V_VT(&value) == VT_DISPATCH)
            dispatch = dispatchOf(V_DISPATCH(&value));
        else if (V_VT(&value) == VT_UNKNOWN)
            dispatch = dispatchOf(V_UNKNOWN(&value));
        if (dispatch == nullptr)
            throw AutomationError(what + " is not an object");
        return std::make_shared<ComObject>(dispatch);
    }

    // The collection's enumerator with a reference of its own, or nullptr
    // when the collection does not offer one.
    IEnumVARIANT* enumerator() {
        VariantHolder result;
        DISPPARAMS none{nullptr, nullptr, 0, 0};
        if (FAILED(dispatch_->Invoke(DISPID_NEWENUM, IID_NULL, LOCALE_USER_DEFAULT,
                                     DISPATCH_METHOD | DISPATCH_PROPERTYGET, &none, &result.value,
                                     nullptr, nullptr)))
            return nullptr;
        IUnknown* unknown = nullptr;
        if (V_VT(&result.value) == VT_UNKNOWN)
            unknown = V_UNKNOWN(&result.value);
        else if (V_VT(&result.value) == VT_DISPATCH)
            unknown = V_DISPATCH(&result.value);
        if (unknown == nullptr)
            return nullptr;
        IEnumVARIANT* items = nullptr;
        if (FAILED(unknown->QueryInterface(IID_IEnumVARIANT, reinterpret_cast<void**>(&items))))
            return nullptr;
        return items;
    }

    static void walk(IEnumVARIANT* items, const std::function<bool(AutomationObject&)>& visit) {
        struct Release {
            IEnumVARIANT* items;
            ~Release() { items->Release(); }
        } release{items};
        for (;;) {
            VariantHolder item;
            ULONG fetched = 0;
            const HRESULT hr = items->Next(1, &item.value, &fetched);
            check(hr, "walking the collection");
            if (hr != S_OK || fetched == 0)
                return;
            if (!visit(*objectFrom(item.value, "a collection item")))
                return;
        }
    }

    void walkByIndex(const std::function<bool(AutomationObject&)>& visit) {
        VariantHolder count;
        invoke(idOf("Count"), DISPATCH_PROPERTYGET, nullptr, 0, &count.value, "Count");
        check(VariantChangeType(&count.value, &count.value, 0, VT_I4), "Count as a number");
        const DISPID item = idOf("Item");
        for (LONG i = 1; i <= V_I4(&count.value); ++i) {
            VariantHolder index;
            V_VT(&index.value) = VT_I4;
            V_I4(&index.value) = i;
            VariantHolder result;
            invoke(item, DISPATCH_METHOD | DISPATCH_PROPERTYGET, &index.value, 1, &result.value,
                   "Item");
            if (!visit(*objectFrom(result.value, "Item")))
                return;
        }
    }

    IDispatch* dispatch_;
};

} // namespace

ComAutomation::ComAutomation() {
    // S_FALSE (already initialised here) must be balanced too; a thread set
    // up for another apartment model (RPC_E_CHANGED_MODE) is used as it is.
    uninitialize_ = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
}

ComAutomation::~ComAutomation() {
    if (uninitialize_)
        CoUninitialize();
}

std::shared_ptr<AutomationObject> ComAutomation::attach(const std::string& progId) {
    const std::wstring wide = wideFromUtf8(progId);
    CLSID clsid{};
    if (FAILED(CLSIDFromProgID(wide.c_str(), &clsid)))
        return nullptr;
    IUnknown* unknown = nullptr;
    if (FAILED(GetActiveObject(clsid, nullptr, &unknown)) || unknown == nullptr)
        return nullptr;
    IDispatch* dispatch = dispatchOf(unknown);
    unknown->Release();
    if (dispatch == nullptr)
        return nullptr;
    return std::make_shared<ComObject>(dispatch);
}

} // namespace huebase

#endif
