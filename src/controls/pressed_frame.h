/// A captioned frame that hears a press on its own ground, beside the controls that stand in it.
#pragma once

#include "controls/furniture.h"

namespace terravane {

class PressedFrame : public Frame {
  public:
    using Frame::Frame;
    void Press() { Raise("Click", Click); }
    Handler Click;
};

}  // namespace terravane
