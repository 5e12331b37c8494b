// SPDX-License-Identifier: MIT
#include "platform/platform.h"

#include "platform/active_window.h"
#include "platform/application_folder.h"
#include "platform/login_services.h"
#include "platform/preferences_storage.h"
#include "platform/terminal_launcher.h"
#include "platform/tray_host.h"

namespace tarnwick {

Platform::Platform() = default;
Platform::Platform(Platform&&) noexcept = default;
Platform::~Platform() = default;

} // namespace tarnwick
