// SPDX-License-Identifier: Apache-2.0
// The window, and the way to it from a job's thread: the question is posted, and the thread waits
// for the answer or the end of its job. Neither thread holds a lock while the other works.

#include "host/dialog/PasswordDialog.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QThread>
#include <chrono>
#include <condition_variable>

namespace orvek {
namespace {

constexpr std::chrono::milliseconds lookAtCancelled{100};

Failure noPassword(const PasswordQuestion &question) {
  return {FailureKind::Io, question.server,
          Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                   "the print server asks for a password, and none was given"))};
}

QString wordsFor(const PasswordQuestion &question) {
  const QString words = PasswordDialog::tr("The print server %1 asks for a name and a password.")
                            .arg(question.server);
  if (!question.isRepeated) return words;
  return PasswordDialog::tr("The print server did not accept that name and password.") +
         QLatin1Char('\n') + words;
}

}  // namespace

PasswordDialog::PasswordDialog(const PasswordQuestion &question, QWidget *parent)
    : PasswordForm(wordsFor(question), tr("&Sign In"), parent),
      m_user(new QLineEdit(question.user, this)) {
  setObjectName(QStringLiteral("passwordDialog"));
  words()->setObjectName(QStringLiteral("passwordWords"));
  m_user->setObjectName(QStringLiteral("userField"));
  passwordField()->setObjectName(QStringLiteral("passwordField"));
  addField(tr("&Name:"), m_user);
}

Credentials PasswordDialog::credentials() const {
  return {m_user->text(), password()};
}

/// Between the thread that waits and the one that shows the window.
struct PasswordWindow::Wait {
  std::mutex mutex;
  std::condition_variable answered;
  std::optional<Result<Credentials>> answer;

  void give(const Result<Credentials> &given) {
    const std::lock_guard lock(mutex);
    answer = given;
    answered.notify_all();
  }
};

Result<Credentials> PasswordWindow::ask(const PasswordQuestion &question,
                                        const std::atomic<bool> *cancelled) {
  if (QThread::currentThread() == thread()) return askHere(question);
  auto wait = std::make_shared<Wait>();
  QMetaObject::invokeMethod(
      this, [this, question, wait] { show(question, wait); }, Qt::QueuedConnection);
  std::unique_lock lock(wait->mutex);
  while (!wait->answer && (cancelled == nullptr || !*cancelled)) {
    wait->answered.wait_for(lock, lookAtCancelled);
  }
  if (wait->answer) return *wait->answer;
  wait->answer = noPassword(question);  // it is not to be shown any more
  QMetaObject::invokeMethod(
      this, [this] { delete m_dialog; }, Qt::QueuedConnection);
  return *wait->answer;
}

Result<Credentials> PasswordWindow::askHere(const PasswordQuestion &question) {
  // Whoever waits for the server shows so; a question is not to be answered under that pointer.
  QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
  PasswordDialog dialog(question, QApplication::activeWindow());
  const bool isGiven = dialog.exec() == QDialog::Accepted;
  QGuiApplication::restoreOverrideCursor();
  if (!isGiven) return noPassword(question);
  return dialog.credentials();
}

void PasswordWindow::show(const PasswordQuestion &question, const std::shared_ptr<Wait> &wait) {
  {
    const std::lock_guard lock(wait->mutex);
    if (wait->answer) return;
  }
  auto *dialog = new PasswordDialog(question, QApplication::activeWindow());
  m_dialog = dialog;
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::finished, this, [question, wait, dialog](int result) {
    wait->give(result == QDialog::Accepted ? Result<Credentials>(dialog->credentials())
                                           : Result<Credentials>(noPassword(question)));
  });
  dialog->open();
}

}  // namespace orvek
