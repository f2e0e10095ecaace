// Entry of the test programs that show windows: offscreen unless the caller chose a platform.
#include "ui/aspetto.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication applicazione(argc, argv);
    bor::applicaAspetto(applicazione);
    return RUN_ALL_TESTS();
}
