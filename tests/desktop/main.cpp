// Desktop tests run on the platform without a screen, with one application for all of them.
#include <QApplication>

#include <gtest/gtest.h>

#include "desktop/looks.h"
#include "render/fonts.h"

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (terravane::TakeFontsBeside() > 0)  // as the program does
        QApplication::setFont(terravane::looks::WithThaiLetters(QApplication::font()));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
