// SPDX-FileCopyrightText: The KOBTraduction authors
#include "VisualStyles.h"

#include "resources.h"

namespace kob::win32 {

VisualStyles::VisualStyles(HINSTANCE module) : context_(INVALID_HANDLE_VALUE) {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(module, path, MAX_PATH);
  ACTCTXW wanted = {};
  wanted.cbSize = sizeof wanted;
  wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  wanted.lpSource = path;
  wanted.hModule = module;
  wanted.lpResourceName = MAKEINTRESOURCEW(KOB_CONTROLS_MANIFEST);
  context_ = CreateActCtxW(&wanted);
}

VisualStyles::~VisualStyles() {
  if (context_ != INVALID_HANDLE_VALUE) {
    ReleaseActCtx(context_);
  }
}

VisualStyles::Scope::Scope(const VisualStyles& styles)
    : isActive_(styles.context_ != INVALID_HANDLE_VALUE &&
                ActivateActCtx(styles.context_, &cookie_) != FALSE) {}

VisualStyles::Scope::~Scope() {
  if (isActive_) {
    DeactivateActCtx(0, cookie_);
  }
}

}  // namespace kob::win32
