// Main routine of the tests of the edge: fonts and printer need an application object, but no screen.
#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (::testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS(); // the names come without the toolkit, and so at once
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication anwendung(argc, argv);
    return RUN_ALL_TESTS();
}
