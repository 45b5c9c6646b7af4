/// A process that does what it is asked: requests go in, answers come out, both texts. How it is started, and what its
/// two ways are made of, is a source a system.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace terravane {

using Service = std::function<std::string(const std::string& request)>;

class WorkerProcess {
  public:
    WorkerProcess() = default;
    virtual ~WorkerProcess() = default;
    WorkerProcess(const WorkerProcess&) = delete;
    WorkerProcess& operator=(const WorkerProcess&) = delete;

    /// A worker that is gone is found out by its silence.
    virtual void Ask(const std::string& request) = 0;

    /// The answer that WaitForAnswers told of; nothing where the process has ended instead.
    virtual std::optional<std::string> TakeAnswer() = 0;

    /// Lets the process end, once it has done what it was asked, and says how it did.
    virtual std::string End() = 0;
};

/// Started as a double of this process that does `work`, or as this program with `arguments`, whose main then calls
/// ServeRequests. RuntimeError 7 where none can be started. It ends with this process at the latest.
std::unique_ptr<WorkerProcess> StartWorker(const Service& work, const std::vector<std::string>& arguments);

/// Which of the workers have answered or ended, as soon as one has or the time is up.
std::vector<std::size_t> WaitForAnswers(std::span<const std::unique_ptr<WorkerProcess>> workers, int milliseconds);

/// The main of a program that was started as a worker: until no more requests come.
void ServeRequests(const Service& work);

/// What is told of a worker that did not crash and still went away.
inline constexpr const char* kEndedByItself = "the program ended by itself; please report the project";

}  // namespace terravane
