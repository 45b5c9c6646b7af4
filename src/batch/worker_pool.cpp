#include "batch/worker_pool.h"

#include <algorithm>
#include <utility>

namespace terravane {

namespace {

constexpr int kTickMilliseconds = 100;

class Pool {
  public:
    Pool(std::size_t count, std::size_t workers, const PoolTask& task)
        : count_(count), task_(task), tasks_(std::min(workers, count))
    {
        for (std::size_t i = 0; i < tasks_.size(); ++i) workers_.push_back(Start());
    }

    void Run()
    {
        for (AssignTasks(); IsBusy(); AssignTasks()) {
            for (const std::size_t worker : WaitForAnswers(workers_, kTickMilliseconds)) TakeAnswer(worker);
            if (task_.tick) task_.tick();
        }
        for (const auto& worker : workers_) worker->End();
    }

  private:
    std::unique_ptr<WorkerProcess> Start() const { return StartWorker(task_.work, task_.worker); }

    bool IsBusy() const
    {
        return std::ranges::any_of(tasks_, [](const auto& task) { return task.has_value(); });
    }

    /// The next tasks to the workers that have none, until the run is stopped.
    void AssignTasks()
    {
        for (std::size_t i = 0; i < tasks_.size(); ++i) {
            if (tasks_[i] || next_ == count_ || (task_.stop && task_.stop())) continue;
            tasks_[i] = next_++;
            workers_[i]->Ask(task_.request(*tasks_[i]));
        }
    }

    void TakeAnswer(std::size_t worker)
    {
        const std::optional<std::size_t> task = std::exchange(tasks_[worker], std::nullopt);
        const auto answer = workers_[worker]->TakeAnswer();
        std::string crash;
        if (!answer) {
            crash = workers_[worker]->End();
            workers_[worker] = Start();
        }
        if (task) task_.done(*task, answer, crash);
    }

    std::size_t count_, next_ = 0;
    const PoolTask& task_;
    std::vector<std::optional<std::size_t>> tasks_;  // of each worker the one it has
    std::vector<std::unique_ptr<WorkerProcess>> workers_;
};

}  // namespace

void RunInWorkers(std::size_t count, std::size_t workers, const PoolTask& task)
{
    Pool(count, workers, task).Run();
}

}  // namespace terravane
