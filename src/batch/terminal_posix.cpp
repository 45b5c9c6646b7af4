#include <initializer_list>

#include <signal.h>
#include <unistd.h>

#include "batch/terminal.h"

namespace terravane {

namespace {

volatile sig_atomic_t interrupted = 0;

void Interrupt(int signalNumber)
{
    interrupted = 1;
    signal(signalNumber, SIG_DFL);
}

}  // namespace

bool IsErrorTerminal()
{
    return isatty(STDERR_FILENO) == 1;
}

bool IsOutputTerminal()
{
    return isatty(STDOUT_FILENO) == 1;
}

/// What the caller ignores (nohup) stays ignored.
void CatchInterruption()
{
    for (const int each : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction before {
        }, action{};
        action.sa_handler = Interrupt;
        if (sigaction(each, nullptr, &before) == 0 && before.sa_handler != SIG_IGN) sigaction(each, &action, nullptr);
    }
}

bool WasInterrupted()
{
    return interrupted != 0;
}

}  // namespace terravane
