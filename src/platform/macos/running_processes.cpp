// SPDX-License-Identifier: MIT
#include "platform/running_processes.h"

#include <array>
#include <sys/sysctl.h>
#include <vector>

namespace tarnwick {

ParentByProcess runningProcesses()
{
    std::array<int, 3> name{CTL_KERN, KERN_PROC, KERN_PROC_ALL};
    std::size_t size = 0;
    if (::sysctl(name.data(), name.size(), nullptr, &size, nullptr, 0) != 0)
        return {};
    // There may be more by the time of the second call.
    std::vector<kinfo_proc> processes(size / sizeof(kinfo_proc) + 64);
    size = processes.size() * sizeof(kinfo_proc);
    if (::sysctl(name.data(), name.size(), processes.data(), &size, nullptr, 0) != 0)
        return {};
    processes.resize(size / sizeof(kinfo_proc));
    ParentByProcess parents;
    for (const kinfo_proc& process : processes) {
        if (process.kp_proc.p_stat != SZOMB)
            parents.insert(process.kp_proc.p_pid, process.kp_eproc.e_ppid);
    }
    return parents;
}

} // namespace tarnwick
