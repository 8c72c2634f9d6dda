// Main routine of the tests of Windows' own calls: no window, no screen.
#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const QCoreApplication anwendung(argc, argv);
    return RUN_ALL_TESTS();
}
