#include <gtest/gtest.h>
#include <QApplication>
#include <QFont>

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    // Only naming the tests needs no screen.
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    const QApplication application(count, arguments);
    // On which the classic grid is, whatever the desktop's own.
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 8));
    return RUN_ALL_TESTS();
}
