// SPDX-License-Identifier: MIT
#include "platform/background_priority.h"

#include <sys/resource.h>
#include <unistd.h>

namespace tarnwick {

namespace {

// Lower still starves on a busy machine: at nice 19 a status took eleven seconds instead of one,
// all that time holding the index.
constexpr int backgroundNice = 5;

void lowerThread()
{
    const auto thread = static_cast<id_t>(::gettid());
    // An error reads as -1, which is below the target: trying is then harmless.
    if (::getpriority(PRIO_PROCESS, thread) < backgroundNice)
        ::setpriority(PRIO_PROCESS, thread, backgroundNice);
}

} // namespace

void enterBackgroundPriority()
{
    static thread_local bool lowered = false;
    if (lowered)
        return;
    lowered = true;
    lowerThread();
}

} // namespace tarnwick
