#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <sstream>
#include <thread>

#include <windows.h>

#include "batch/worker_message.h"
#include "batch/worker_process.h"
#include "runtime/machine.h"
#include "runtime/native_path.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

/// Closed at the end of its scope.
class Handle {
  public:
    explicit Handle(HANDLE handle = nullptr) : handle_(handle) {}
    ~Handle() { Close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    HANDLE Get() const { return handle_; }
    HANDLE* Place() { return &handle_; }
    void Close()
    {
        if (handle_) CloseHandle(handle_);
        handle_ = nullptr;
    }

  private:
    HANDLE handle_;
};

DWORD Portion(std::size_t count)
{
    constexpr std::size_t kMost = 1 << 20;
    return static_cast<DWORD>(std::min(count, kMost));
}

bool SendWhole(HANDLE pipe, const std::string& text)
{
    return SendText(
        [pipe](const void* bytes, std::size_t count) {
            const char* at = static_cast<const char*>(bytes);
            for (DWORD sent = 0; count > 0; at += sent, count -= sent) {
                if (!WriteFile(pipe, at, Portion(count), &sent, nullptr)) return false;
            }
            return true;
        },
        text);
}

std::optional<std::string> ReceiveWhole(HANDLE pipe)
{
    return ReceiveText([pipe](void* bytes, std::size_t count) {
        char* at = static_cast<char*>(bytes);
        for (DWORD got = 0; count > 0; at += got, count -= got) {
            if (!ReadFile(pipe, at, Portion(count), &got, nullptr) || got == 0) return false;
        }
        return true;
    });
}

/// All workers of this process: when it ends, however it ends, the system ends them.
HANDLE Job()
{
    static const HANDLE job = [] {
        const HANDLE made = CreateJobObjectW(nullptr, nullptr);
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
        limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        SetInformationJobObject(made, JobObjectExtendedLimitInformation, &limits, sizeof limits);
        return made;
    }();
    return job;
}

/// An argument as the other program's start takes the line apart again: in quotes, with marks before quotes doubled.
std::wstring Quoted(const std::wstring& argument)
{
    std::wstring quoted = L"\"";
    std::size_t marks = 0;
    for (const wchar_t letter : argument) {
        if (letter == L'"') quoted.append(marks + 1, L'\\');
        marks = letter == L'\\' ? marks + 1 : 0;
        quoted += letter;
    }
    return quoted.append(marks, L'\\') + L'"';
}

std::wstring CommandLine(const std::vector<std::string>& arguments)
{
    std::wstring line = Quoted(ToNative(ProgramFile()).wstring());
    for (const std::string& argument : arguments) line += L' ' + Quoted(ToNative(argument).wstring());
    return line;
}

/// What a new process may inherit, and nothing besides: an end of a sibling's pipe would keep that one waiting.
class Inheritance {
  public:
    explicit Inheritance(std::vector<HANDLE> handles) : handles_(std::move(handles))
    {
        std::erase(handles_, nullptr);
        SIZE_T size = 0;
        InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        room_.resize(size);
        InitializeProcThreadAttributeList(List(), 1, 0, &size);
        UpdateProcThreadAttribute(List(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles_.data(),
                                  handles_.size() * sizeof(HANDLE), nullptr, nullptr);
    }
    ~Inheritance() { DeleteProcThreadAttributeList(List()); }
    Inheritance(const Inheritance&) = delete;
    Inheritance& operator=(const Inheritance&) = delete;

    LPPROC_THREAD_ATTRIBUTE_LIST List() { return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(room_.data()); }

  private:
    std::vector<HANDLE> handles_;
    std::vector<char> room_;
};

/// An unexpected end has the system's own status (an access violation, a stack's end) or that of the library's abort.
std::string HowItEnded(DWORD status)
{
    constexpr DWORD kException = 0xC0000000, kAbort = 3;
    if (status != kAbort && (status & kException) != kException) return kEndedByItself;
    std::ostringstream number;
    number << std::hex << status;
    return "the program crashed (status " + number.str() + "); please report the project";
}

/// Rung by every worker's reader when there is something to take.
std::mutex bell;
std::condition_variable rung;

class StartedProgram : public WorkerProcess {
  public:
    explicit StartedProgram(const std::vector<std::string>& arguments)
    {
        Handle requestsOut, answersIn;
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        if (!CreatePipe(requestsOut.Place(), requests_.Place(), &inherited, 0) ||
            !CreatePipe(answers_.Place(), answersIn.Place(), &inherited, 0)) {
            throw RuntimeError(error::kOutOfMemory);
        }
        SetHandleInformation(requests_.Get(), HANDLE_FLAG_INHERIT, 0);
        SetHandleInformation(answers_.Get(), HANDLE_FLAG_INHERIT, 0);
        Start(arguments, requestsOut.Get(), answersIn.Get());
        reader_ = std::thread([this] { Read(); });
    }
    ~StartedProgram() override { StartedProgram::End(); }

    void Ask(const std::string& request) override { SendWhole(requests_.Get(), request); }

    bool HasAnswered() const { return !taken_.empty(); }

    std::optional<std::string> TakeAnswer() override
    {
        const std::lock_guard lock(bell);
        if (taken_.empty()) return std::nullopt;
        auto answer = std::move(taken_.front());
        taken_.pop_front();
        return answer;
    }

    std::string End() override
    {
        if (!reader_.joinable()) return {};
        requests_.Close();
        WaitForSingleObject(process_.Get(), INFINITE);
        reader_.join();
        DWORD status = 0;
        GetExitCodeProcess(process_.Get(), &status);
        return HowItEnded(status);
    }

  private:
    void Start(const std::vector<std::string>& arguments, HANDLE input, HANDLE output)
    {
        Inheritance inheritance({input, output});
        STARTUPINFOEXW start{};
        start.StartupInfo.cb = sizeof start;
        start.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
        start.StartupInfo.hStdInput = input;
        start.StartupInfo.hStdOutput = output;
        start.lpAttributeList = inheritance.List();
        std::wstring line = CommandLine(arguments);
        // Without the console no Ctrl-C reaches it; suspended until it belongs to the job.
        constexpr DWORD kHow = EXTENDED_STARTUPINFO_PRESENT | CREATE_NO_WINDOW | CREATE_SUSPENDED;
        PROCESS_INFORMATION made{};
        if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, kHow, nullptr, nullptr, &start.StartupInfo,
                            &made)) {
            throw RuntimeError(error::kOutOfMemory);
        }
        *process_.Place() = made.hProcess;
        AssignProcessToJobObject(Job(), made.hProcess);
        ResumeThread(made.hThread);
        CloseHandle(made.hThread);
    }

    /// In a thread of its own, until the process has closed its end.
    void Read()
    {
        std::optional<std::string> answer;
        do {
            answer = ReceiveWhole(answers_.Get());
            const std::lock_guard lock(bell);
            taken_.push_back(answer);
            rung.notify_one();
        } while (answer);
    }

    Handle requests_, answers_, process_;
    std::deque<std::optional<std::string>> taken_;  // the last one, of a process that is gone, is none
    std::thread reader_;
};

}  // namespace

std::unique_ptr<WorkerProcess> StartWorker(const Service&, const std::vector<std::string>& arguments)
{
    return std::make_unique<StartedProgram>(arguments);
}

std::vector<std::size_t> WaitForAnswers(std::span<const std::unique_ptr<WorkerProcess>> workers, int milliseconds)
{
    std::vector<std::size_t> answered;
    const auto look = [&] {
        for (std::size_t i = 0; i < workers.size(); ++i) {
            if (static_cast<const StartedProgram&>(*workers[i]).HasAnswered()) answered.push_back(i);
        }
        return !answered.empty();
    };
    std::unique_lock lock(bell);
    rung.wait_for(lock, std::chrono::milliseconds(milliseconds), look);
    return answered;
}

void ServeRequests(const Service& work)
{
    const HANDLE requests = GetStdHandle(STD_INPUT_HANDLE), answers = GetStdHandle(STD_OUTPUT_HANDLE);
    while (const auto request = ReceiveWhole(requests)) {
        if (!SendWhole(answers, work(*request))) break;
    }
}

}  // namespace terravane
