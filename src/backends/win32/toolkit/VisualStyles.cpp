#include "backends/win32/toolkit/VisualStyles.h"

#include <uxtheme.h>
#include <vssym32.h>

#include "backends/win32/toolkit/Window.h"

namespace lumenote {
namespace {

constexpr WORD kManifest = 2;  // see visual_styles.rc

/// Names the controls that the component's manifest asks for.
class Controls {
 public:
  Controls() {
    ACTCTXW wanted = {};
    wanted.cbSize = sizeof wanted;
    wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    wanted.hModule = OwnModule();
    wanted.lpResourceName = MAKEINTRESOURCEW(kManifest);
    context_ = CreateActCtxW(&wanted);
  }
  ~Controls() {
    if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
  }
  Controls(const Controls&) = delete;
  Controls& operator=(const Controls&) = delete;

  bool Activate(ULONG_PTR& cookie) const {
    return context_ != INVALID_HANDLE_VALUE && ActivateActCtx(context_, &cookie);
  }

 private:
  HANDLE context_;
};

const Controls& OwnControls() {
  static const Controls controls;
  return controls;
}

}  // namespace

VisualStyles::VisualStyles() : active_(OwnControls().Activate(cookie_)) {}

VisualStyles::~VisualStyles() {
  if (active_) DeactivateActCtx(0, cookie_);
}

void PaintStyledEdge(HWND window) {
  const HTHEME theme = OpenThemeData(window, L"EDIT");
  if (!theme) return;
  RECT outer;
  GetWindowRect(window, &outer);
  OffsetRect(&outer, -outer.left, -outer.top);
  RECT inner = outer;
  InflateRect(&inner, -GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYEDGE));
  const HDC dc = GetWindowDC(window);
  ExcludeClipRect(dc, inner.left, inner.top, inner.right, inner.bottom);
  DrawThemeBackground(theme, dc, EP_EDITTEXT, ETS_NORMAL, &outer, nullptr);
  ReleaseDC(window, dc);
  CloseThemeData(theme);
}

}  // namespace lumenote
