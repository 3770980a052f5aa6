// SPDX-License-Identifier: Apache-2.0
// orvek-job-notice QUEUE JOB SERVER USER: says on the desktop that the job was sent, and cancels it
// where the user asks for that. SERVER and USER may be empty. Ends when the notice is gone.

#include <QCoreApplication>
#include <QTimer>
#include <cstdio>

#include "host/jobs/QueueJob.h"
#include "host/sent/DesktopNotice.h"
#include "host/translations/FailureText.h"
#include "host/translations/Translations.h"
#include "platform/system/StandardDescriptors.h"

namespace {

using namespace orvek;

constexpr int misused = 2;
constexpr int callWords = 5;
/// Not every desktop tells of a notice's end.
constexpr int longestMilliseconds = 60000;

struct Words {
  Q_DECLARE_TR_FUNCTIONS(orvek::JobNotice)
};

QString cancelled(const QStringList &words) {
  ServerAccess access;
  if (!words[3].isEmpty()) access.server = words[3];
  if (!words[4].isEmpty()) access.user = words[4];
  const Status done = cancelJob(access, words[1], words[2].toInt());
  return done ? Words::tr("Job %1 on %2 was cancelled").arg(words[2], words[1])
              : failureText(done.failure());
}

int run(QCoreApplication &application) {
  const QStringList words = QCoreApplication::arguments();
  const QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return 0;
  DesktopNotice notice(bus);
  const QString sent = Words::tr("Sent to %1, job %2").arg(words[1], words[2]);
  if (!notice.show(sent, Words::tr("Cancel Job"))) return 0;
  bool isCancelling = false;
  QObject::connect(&notice, &DesktopNotice::actionAsked, &application, [&] {
    isCancelling = true;
    notice.show(cancelled(words), QString());
    QCoreApplication::quit();
  });
  // A notice goes as its button is pressed.
  QObject::connect(&notice, &DesktopNotice::closed, &application, [&isCancelling] {
    if (!isCancelling) QTimer::singleShot(0, qApp, &QCoreApplication::quit);
  });
  QTimer::singleShot(longestMilliseconds, &application, &QCoreApplication::quit);
  return QCoreApplication::exec();
}

}  // namespace

int main(int count, char **words) {
  orvek::openStandardDescriptors();
  if (count != callWords) {
    std::fputs("orvek-job-notice: is started by orvek-print, with the job it sent\n", stderr);
    return misused;
  }
  QCoreApplication application(count, words);
  orvek::installTranslations();
  return run(application);
}
