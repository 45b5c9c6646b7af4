/// The person in front of a run: whether there is one, and whether Ctrl-C was pressed.
#pragma once

namespace terravane {

/// Whether standard error, or standard output, is a terminal.
bool IsErrorTerminal();
bool IsOutputTerminal();

/// From now on the first Ctrl-C, or a polite request to end, only sets WasInterrupted; the next one ends the program.
void CatchInterruption();
bool WasInterrupted();

}  // namespace terravane
