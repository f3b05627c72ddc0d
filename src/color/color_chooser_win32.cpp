#include "color/color_chooser_win32.h"

#include "color/hex_text.h"

#include <windows.h>

#include <commdlg.h>

#include <array>
#include <cstring>
#include <string>

namespace huebase::modColorDialog {

namespace {
// The chooser keeps no placement of its own and its hook procedures get no
// user data, so the hook handle and owner live with the custom colours for
// the whole process.
struct ChooserState {
    CHOOSECOLORA record{};
    std::array<COLORREF, kCustomColorCount> customColors{};
    bool customColorsSet = false;
    std::string customColorsHex; // kept after each choice for diagnosis only
    HHOOK hook = nullptr;
    HWND owner = nullptr;
};

ChooserState& state() {
    static ChooserState chooser;
    return chooser;
}

ScreenRect screenRectOf(HWND window) {
    RECT r{};
    GetWindowRect(window, &r);
    return {r.left, r.top, r.right, r.bottom};
}

// Moves the chooser without resizing, reordering or activating it, then
// removes the hook so that it acts only once.
void placeAndUnhook(HWND chooser, const ScreenRect& area) {
    const ScreenRect own = screenRectOf(chooser);
    const ScreenPoint origin = centredOrigin(area, own.right - own.left, own.bottom - own.top);
    SetWindowPos(chooser, nullptr, origin.x, origin.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    UnhookWindowsHookEx(state().hook);
    state().hook = nullptr;
}

LRESULT CALLBACK CenterOnScreenHook(int code, WPARAM wParam, LPARAM) {
    if (code == HCBT_ACTIVATE)
        placeAndUnhook(reinterpret_cast<HWND>(wParam),
                       {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
    return 0;
}

LRESULT CALLBACK CenterOnOwnerHook(int code, WPARAM wParam, LPARAM) {
    if (code == HCBT_ACTIVATE)
        placeAndUnhook(reinterpret_cast<HWND>(wParam), screenRectOf(state().owner));
    return 0;
}
} // namespace

ColorChoice chooseColorWin32(void* ownerHandle, bool centreOnOwner, ColorValue initial) {
    ChooserState& s = state();
    if (!s.customColorsSet) {
        std::memset(s.customColors.data(), 0xFE, sizeof s.customColors);
        s.customColorsSet = true;
    }
    const HWND owner = static_cast<HWND>(ownerHandle);
    s.owner = owner;
    s.record = {};
    s.record.lStructSize = sizeof(CHOOSECOLORA);
    s.record.hwndOwner = owner;
    s.record.rgbResult = static_cast<COLORREF>(initial);
    s.record.lpCustColors = s.customColors.data();
    s.record.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR; // 0x103

    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(owner, GWLP_HINSTANCE));
    s.hook = SetWindowsHookExA(WH_CBT, centreOnOwner ? CenterOnOwnerHook : CenterOnScreenHook,
                               instance, GetCurrentThreadId());
    const BOOL chosen = ChooseColorA(&s.record);
    if (s.hook != nullptr) { // the chooser failed before it was activated
        UnhookWindowsHookEx(s.hook);
        s.hook = nullptr;
    }
    if (chosen == 0)
        return {0, true};
    s.customColorsHex = StringToHex(std::string_view(
        reinterpret_cast<const char*>(s.customColors.data()), sizeof s.customColors));
    return {static_cast<ColorValue>(s.record.rgbResult), false};
}

} // namespace huebase::modColorDialog
