// Desktop tests run on the platform without a screen, with one application for all of them.
#include <QApplication>

#include <gtest/gtest.h>

#include "desktop/looks.h"
#include "render/fonts.h"

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (terravane::TakeFontsBeside() > 0)  // the platform without a screen has none of its own there
        QApplication::setFont(terravane::looks::WithThaiLetters(QFont("Liberation Sans", 9)));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
