// SPDX-License-Identifier: MIT
#include "platform/memory_file.h"

#include <sys/mman.h>

namespace tarnwick {

int openMemoryFile()
{
    return ::memfd_create("tarnwick", MFD_CLOEXEC);
}

} // namespace tarnwick
