#include <tests/conformance/qt/MessageRecorder.h>

#include <QString>
#include <QtGlobal>

#include <cstdlib>
#include <iostream>
#include <mutex>

namespace wayvane::conformance {

namespace {

std::mutex mutex;
Messages messages;

bool saysWhatOffscreenLacks(const QString& text)
{
  return text.startsWith(QLatin1String("This plugin does not support "));
}

void record(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
  const std::string line = text.toStdString();
  const bool isOurs = context.category && std::string(context.category) == "wayvane";
  {
    const std::scoped_lock lock(mutex);
    if (isOurs)
      messages.logged.push_back(line);
    else if (type != QtDebugMsg && type != QtInfoMsg && !saysWhatOffscreenLacks(text))
      messages.complaints.push_back(line);
  }
  if (type != QtFatalMsg) return;
  std::cerr << line << std::endl;
  std::abort();
}

} // namespace

void recordMessages()
{
  qInstallMessageHandler(record);
}

Messages recordedMessages()
{
  const std::scoped_lock lock(mutex);
  return messages;
}

void forgetMessages()
{
  const std::scoped_lock lock(mutex);
  messages = {};
}

} // namespace wayvane::conformance
