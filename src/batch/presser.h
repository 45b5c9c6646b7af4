/// The hands of a technician who works on one sheet: presses commands in turn and stops at the first that goes wrong.
#pragma once

#include <string_view>

#include "batch/batch_surroundings.h"
#include "controls/control.h"
#include "sheets/pattern/test_sheet.h"

namespace terravane {

class Presser {
  public:
    Presser(TestSheet& sheet, BatchSurroundings& heard) : sheet_(sheet), heard_(heard) {}

    TestSheet& Sheet() const { return sheet_; }
    /// Whether a command went wrong; those after it are not pressed any more.
    bool HasStopped() const { return hasStopped_; }

    void Press(std::string_view command);
    void Choose(std::string_view option);
    void Tick(std::string_view box, bool on);
    void Set(std::string_view box, std::string_view text);

  private:
    template <class Act>
    void Do(const Control& control, Act act);

    TestSheet& sheet_;
    BatchSurroundings& heard_;
    bool hasStopped_ = false;
};

}  // namespace terravane
