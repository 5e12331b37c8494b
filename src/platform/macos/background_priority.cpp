// SPDX-License-Identifier: MIT
#include "platform/background_priority.h"

#include <pthread.h>
#include <sys/qos.h>

namespace tarnwick {

void enterBackgroundPriority()
{
    // A thread that has opted out of quality of service refuses, and stays as it is.
    pthread_set_qos_class_self_np(QOS_CLASS_BACKGROUND, 0);
}

} // namespace tarnwick
