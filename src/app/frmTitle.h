/// The splash: stands for three seconds or until a key is pressed, then gives way to the frame.
#pragma once

#include "controls/furniture.h"
#include "controls/text_controls.h"
#include "program/program.h"
#include "program/version.h"

namespace terravane {

struct frmTitle : Form {
    explicit frmTitle(Program& program);

    Program& program;

    Image Image1{*this, "Image1"};
    Label lblName{*this, "lblName", "Terravane"};
    Label lblSubject{*this, "lblSubject", "Materials for Road Construction"};
    Label lblVersion{*this, "lblVersion", "Version " TERRAVANE_VERSION};
    Label lblPress{*this, "lblPress", "Press any key"};
    // Takes the key that ends the splash, whether it types or not.
    TextBox txtLoad{*this,
                    "txtLoad",
                    "",
                    {.Change = [this] { txtLoad_KeyPress(); },
                     .KeyPress =
                         [this](Key) {
                             txtLoad_KeyPress();
                             return true;
                         }}};
    Timer Timer1{*this, "Timer1", std::chrono::milliseconds(3000), {.Ticked = [this] { Timer1_Timer(); }}};

    void Form_Activate() override { txtLoad.SetFocus(); }

    void txtLoad_KeyPress() const { ShowFrame(); }
    void Timer1_Timer() const { ShowFrame(); }

  private:
    void ShowFrame() const;
};

}  // namespace terravane
