/// Numbered tasks done by worker processes. A worker that crashes costs the task it had and is replaced; what one task
/// left behind in memory can't reach another worker's.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "batch/worker_process.h"

namespace terravane {

/// request  what a worker is told of a task; all it needs to know beside what `work` knows
/// work     in a worker: a request's answer
/// worker   the arguments that make this program such a worker, for a system that starts workers anew
/// done     runs here, in the order in which tasks end; without an answer where the worker crashed, then `crash` says
/// how stop     asked again and again: true hands out no further task; those begun are waited for tick     runs at
/// least some times a second
struct PoolTask {
    std::function<std::string(std::size_t task)> request;
    Service work;
    std::vector<std::string> worker;
    std::function<void(std::size_t task, const std::optional<std::string>& answer, const std::string& crash)> done;
    std::function<bool()> stop;
    std::function<void()> tick;
};

/// Does tasks 0 to count - 1 with that many workers at a time. The process must have no other thread and must not have
/// started Qt: where the system can double a process, workers are its doubles. RuntimeError 7 where no worker can be
/// started.
void RunInWorkers(std::size_t count, std::size_t workers, const PoolTask& task);

}  // namespace terravane
