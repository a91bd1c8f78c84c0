#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
  testing::InitGoogleMock(&argc, argv);
  QApplication app(argc, argv);
  QCoreApplication::setOrganizationDomain(QStringLiteral("recording.example"));
  QCoreApplication::setApplicationName(QStringLiteral("recording-tests"));
  QCoreApplication::setApplicationVersion(QStringLiteral("2.5"));
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
