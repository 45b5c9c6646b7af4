#include "batch/worker_pool.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "runtime/runtime_error.h"

namespace terravane {

namespace {

// Between the two ends of a socket: a task's number goes to the worker, its answer comes back behind its length; both
// numbers have eight bytes.

constexpr int kTickMilliseconds = 100;

bool SendAll(int socket, const void* bytes, std::size_t count)
{
    const char* at = static_cast<const char*>(bytes);
    while (count > 0) {
        const ssize_t sent = send(socket, at, count, MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR) continue;
        if (sent <= 0) return false;
        at += sent;
        count -= static_cast<std::size_t>(sent);
    }
    return true;
}

/// False at the end of what comes.
bool ReceiveAll(int socket, void* bytes, std::size_t count)
{
    char* at = static_cast<char*>(bytes);
    while (count > 0) {
        const ssize_t got = recv(socket, at, count, 0);
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) return false;
        at += got;
        count -= static_cast<std::size_t>(got);
    }
    return true;
}

bool SendText(int socket, const std::string& text)
{
    const std::uint64_t length = text.size();
    return SendAll(socket, &length, sizeof length) && SendAll(socket, text.data(), text.size());
}

std::optional<std::string> ReceiveText(int socket)
{
    std::uint64_t length = 0;
    if (!ReceiveAll(socket, &length, sizeof length)) return std::nullopt;
    std::string text(length, '\0');
    if (!ReceiveAll(socket, text.data(), text.size())) return std::nullopt;
    return text;
}

/// Ctrl-C reaches every process of the terminal: a worker ends its task and is told by the end of the socket.
[[noreturn]] void ServeAsWorker(int socket, const PoolTask& task)
{
    signal(SIGINT, SIG_IGN);
    signal(SIGTERM, SIG_IGN);
    std::uint64_t number = 0;
    while (ReceiveAll(socket, &number, sizeof number)) {
        if (!SendText(socket, task.work(number))) break;
    }
    _exit(0);
}

std::string HowItEnded(int status)
{
    if (WIFSIGNALED(status)) {
        return "the program crashed (" + std::string(strsignal(WTERMSIG(status))) + "); please report the project";
    }
    return "the program ended by itself; please report the project";
}

struct Worker {
    pid_t process = -1;
    int socket = -1;
    std::optional<std::size_t> task;
};

class Pool {
  public:
    Pool(std::size_t count, std::size_t workers, const PoolTask& task) : count_(count), task_(task)
    {
        for (std::size_t i = 0; i < std::min(workers, count); ++i) workers_.push_back(Start());
    }
    ~Pool()
    {
        for (Worker& worker : workers_) End(worker);
    }
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

    void Run()
    {
        for (HandOut(); IsBusy(); HandOut()) {
            WaitForAnswers();
            if (task_.tick) task_.tick();
        }
    }

  private:
    Worker Start()
    {
        std::array<int, 2> ends{};
        if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) != 0) throw RuntimeError(error::kOutOfMemory);
        const pid_t process = fork();
        if (process < 0) throw RuntimeError(error::kOutOfMemory);
        if (process == 0) {
            close(ends[0]);
            for (const Worker& sibling : workers_) close(sibling.socket);
            ServeAsWorker(ends[1], task_);
        }
        close(ends[1]);
        return {process, ends[0], std::nullopt};
    }

    static std::string End(Worker& worker)
    {
        close(worker.socket);
        int status = 0;
        while (waitpid(worker.process, &status, 0) < 0 && errno == EINTR) {
        }
        return HowItEnded(status);
    }

    bool IsBusy() const
    {
        return std::ranges::any_of(workers_, [](const Worker& worker) { return worker.task.has_value(); });
    }

    void HandOut()
    {
        for (Worker& worker : workers_) {
            if (worker.task || next_ == count_ || (task_.stop && task_.stop())) continue;
            worker.task = next_++;
            const std::uint64_t number = *worker.task;
            SendAll(worker.socket, &number, sizeof number);  // a worker that is gone is found out by its silence
        }
    }

    void WaitForAnswers()
    {
        std::vector<pollfd> sockets;
        for (const Worker& worker : workers_) sockets.push_back({worker.socket, POLLIN, 0});
        if (poll(sockets.data(), sockets.size(), kTickMilliseconds) <= 0) return;
        for (std::size_t i = 0; i < sockets.size(); ++i) {
            if (sockets[i].revents != 0) TakeAnswer(workers_[i]);
        }
    }

    void TakeAnswer(Worker& worker)
    {
        const std::optional<std::size_t> task = std::exchange(worker.task, std::nullopt);
        const auto answer = ReceiveText(worker.socket);
        std::string crash;
        if (!answer) {
            crash = End(worker);
            worker.socket = -1;
            worker = Start();
        }
        if (task) task_.done(*task, answer, crash);
    }

    std::size_t count_, next_ = 0;
    const PoolTask& task_;
    std::vector<Worker> workers_;
};

}  // namespace

void RunInWorkers(std::size_t count, std::size_t workers, const PoolTask& task)
{
    Pool(count, workers, task).Run();
}

}  // namespace terravane
