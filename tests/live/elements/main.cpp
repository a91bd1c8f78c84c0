#include <QApplication>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace {

std::vector<std::string>& warnings()
{
  static std::vector<std::string> list;
  return list;
}

void keepWarning(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
  // The offscreen platform says so whenever a menu opens or a window is raised.
  const bool isOffscreens = message.startsWith(QLatin1String("This plugin does not support"));
  if (type != QtDebugMsg && type != QtInfoMsg && !isOffscreens) warnings().push_back(message.toStdString());
}

/// A warning of the toolkit's means that the binding asked what it must not.
class NoWarnings : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo& /*test*/) override { warnings().clear(); }

  void OnTestEnd(const testing::TestInfo& /*test*/) override
  {
    for (const auto& warning : warnings())
      ADD_FAILURE() << "the toolkit warned: " << warning;
  }
};

} // namespace

int main(int argc, char** argv)
{
  testing::InitGoogleMock(&argc, argv);
  qInstallMessageHandler(keepWarning);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Notes"));
  QApplication::setOrganizationDomain(QStringLiteral("example.org"));
  QApplication::setApplicationVersion(QStringLiteral("1.4"));
  QApplication::setQuitOnLastWindowClosed(false);
  testing::UnitTest::GetInstance()->listeners().Append(new NoWarnings);
  return RUN_ALL_TESTS();
}
