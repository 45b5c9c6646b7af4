#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <set>

#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "batch/worker_message.h"
#include "batch/worker_process.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

/// One end of a pair of sockets.
struct Socket {
    int number = -1;

    bool Send(const void* bytes, std::size_t count) const
    {
        const char* at = static_cast<const char*>(bytes);
        while (count > 0) {
            const ssize_t sent = send(number, at, count, MSG_NOSIGNAL);
            if (sent < 0 && errno == EINTR) continue;
            if (sent <= 0) return false;
            at += sent;
            count -= static_cast<std::size_t>(sent);
        }
        return true;
    }

    bool Receive(void* bytes, std::size_t count) const
    {
        char* at = static_cast<char*>(bytes);
        while (count > 0) {
            const ssize_t got = recv(number, at, count, 0);
            if (got < 0 && errno == EINTR) continue;
            if (got <= 0) return false;
            at += got;
            count -= static_cast<std::size_t>(got);
        }
        return true;
    }

    bool SendWhole(const std::string& text) const
    {
        return SendText([this](const void* bytes, std::size_t count) { return Send(bytes, count); }, text);
    }
    std::optional<std::string> ReceiveWhole() const
    {
        return ReceiveText([this](void* bytes, std::size_t count) { return Receive(bytes, count); });
    }
};

/// Ctrl-C reaches every process of the terminal: a worker ends its task and is told by the end of the socket.
[[noreturn]] void Serve(const Socket& socket, const Service& work)
{
    signal(SIGINT, SIG_IGN);
    signal(SIGTERM, SIG_IGN);
    while (const auto request = socket.ReceiveWhole()) {
        if (!socket.SendWhole(work(*request))) break;
    }
    _exit(0);
}

std::string HowItEnded(int status)
{
    if (!WIFSIGNALED(status)) return kEndedByItself;
    return "the program crashed (" + std::string(strsignal(WTERMSIG(status))) + "); please report the project";
}

class Fork : public WorkerProcess {
  public:
    explicit Fork(const Service& work)
    {
        std::array<int, 2> ends{};
        if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) != 0) throw RuntimeError(error::kOutOfMemory);
        process_ = fork();
        if (process_ < 0) throw RuntimeError(error::kOutOfMemory);
        if (process_ == 0) {
            close(ends[0]);
            for (const int sibling : Employers()) close(sibling);  // it would wait for us too
            Serve({ends[1]}, work);
        }
        close(ends[1]);
        socket_.number = ends[0];
        Employers().insert(ends[0]);
    }
    ~Fork() override { Fork::End(); }

    void Ask(const std::string& request) override { socket_.SendWhole(request); }
    std::optional<std::string> TakeAnswer() override { return socket_.ReceiveWhole(); }

    std::string End() override
    {
        if (socket_.number < 0) return {};
        Employers().erase(socket_.number);
        close(socket_.number);
        socket_.number = -1;
        int status = 0;
        while (waitpid(process_, &status, 0) < 0 && errno == EINTR) {
        }
        return HowItEnded(status);
    }

    pollfd Polled() const { return {socket_.number, POLLIN, 0}; }

  private:
    /// This process's ends of all sockets.
    static std::set<int>& Employers()
    {
        static std::set<int> employers;
        return employers;
    }

    pid_t process_ = -1;
    Socket socket_;
};

}  // namespace

std::unique_ptr<WorkerProcess> StartWorker(const Service& work, const std::vector<std::string>&)
{
    return std::make_unique<Fork>(work);
}

std::vector<std::size_t> WaitForAnswers(std::span<const std::unique_ptr<WorkerProcess>> workers, int milliseconds)
{
    std::vector<pollfd> sockets;
    for (const auto& worker : workers) sockets.push_back(static_cast<const Fork&>(*worker).Polled());
    std::vector<std::size_t> answered;
    if (poll(sockets.data(), sockets.size(), milliseconds) <= 0) return answered;
    for (std::size_t i = 0; i < sockets.size(); ++i) {
        if (sockets[i].revents != 0) answered.push_back(i);
    }
    return answered;
}

/// Forks serve where they were made; a program that is started as a worker by hand serves nobody.
void ServeRequests(const Service&) {}

}  // namespace terravane
