#include "Program.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

namespace roundtrip {

namespace {

constexpr int kLongestRun = 100'000;

QProcessEnvironment environmentIn(const QDir& home)
{
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert("HOME", home.path());
  for (const char* folder : {"config", "data", "cache", "state", "runtime"}) {
    (void)home.mkpath(folder);
    const QString suffix = qstrcmp(folder, "runtime") == 0 ? "_DIR" : "_HOME";
    environment.insert("XDG_" + QString(folder).toUpper() + suffix, home.filePath(folder));
  }
  QFile::setPermissions(home.filePath("runtime"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  return environment;
}

QString howItEnded(QProcess& process)
{
  if (!process.waitForStarted()) return "does not start: " + process.errorString();
  if (!process.waitForFinished(kLongestRun)) {
    process.kill();
    process.waitForFinished();
    return "did not end in time";
  }
  if (process.exitStatus() == QProcess::CrashExit) return "crashed";
  return process.exitCode() == 0 ? QString() : QString("ended with %1").arg(process.exitCode());
}

QStringList linesOf(const QString& path)
{
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

Run run(const Program& program, const QDir& home, QProcessEnvironment environment)
{
  if (!QFile::exists(program.path))
    return {"is not installed; packaging/debian-packages.sh foreign installs it", {}};
  environment.insert("LD_PRELOAD", ROUNDTRIP_PROBE);
  environment.insert("WAYVANE_ROUNDTRIP", program.commands);
  environment.insert("WAYVANE_ROUNDTRIP_REPORT", home.filePath("report"));
  environment.insert("WAYVANE_ROUNDTRIP_GUIDES", QDir::home().filePath(program.name));

  QProcess process;
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(home.path());
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program.path, {});
  Run result{howItEnded(process), linesOf(home.filePath("report"))};
  if (!result.failure.isEmpty()) result.failure += "\n" + QString::fromUtf8(process.readAll());
  return result;
}

} // namespace

Run record(const Program& program)
{
  const QDir home(QDir::home().filePath(program.name));
  return run(program, home, environmentIn(home));
}

Run replay(const Program& program)
{
  const QDir home(QDir::home().filePath(program.name + "-again"));
  auto environment = environmentIn(home);
  environment.insert("WAYVANE_ROUNDTRIP_REPLAY", "1");
  return run(program, home, environment);
}

} // namespace roundtrip
