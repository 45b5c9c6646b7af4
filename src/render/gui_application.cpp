#include "render/gui_application.h"

#include <QGuiApplication>

namespace terravane {

namespace {

QGuiApplication* MakeApplication()
{
    static char name[] = "terravane";
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static char* arguments[] = {name, option, platform, nullptr};
    static int count = 3;
    return new QGuiApplication(count, arguments);
}

}  // namespace

void EnsureGuiApplication()
{
    if (QCoreApplication::instance()) return;
    static const QGuiApplication* const application = MakeApplication();
    static_cast<void>(application);
}

}  // namespace terravane
