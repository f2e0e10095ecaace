// Entry of the test programs that show windows: offscreen unless the caller chose a platform.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication applicazione(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    return RUN_ALL_TESTS();
}
