#include <atomic>

#include <windows.h>

#include "batch/terminal.h"

namespace terravane {

namespace {

std::atomic<bool> interrupted = false;

/// In a thread of the system's. False leaves the next one to the system, which ends the program.
BOOL WINAPI Interrupt(DWORD)
{
    return interrupted.exchange(true) ? FALSE : TRUE;
}

bool IsTerminal(DWORD stream)
{
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(stream), &mode) != FALSE;
}

/// A terminal that takes the sequences that the bar is cleared with.
bool TakesSequences(DWORD stream)
{
    const HANDLE terminal = GetStdHandle(stream);
    DWORD mode = 0;
    return GetConsoleMode(terminal, &mode) && SetConsoleMode(terminal, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

}  // namespace

bool IsErrorTerminal()
{
    return TakesSequences(STD_ERROR_HANDLE);
}

bool IsOutputTerminal()
{
    return IsTerminal(STD_OUTPUT_HANDLE);
}

void CatchInterruption()
{
    SetConsoleCtrlHandler(Interrupt, TRUE);
}

bool WasInterrupted()
{
    return interrupted;
}

}  // namespace terravane
