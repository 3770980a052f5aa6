// SPDX-License-Identifier: Apache-2.0
// Watches the X server for a window that a program has it show.

#include <xcb/xcb.h>

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <cstdlib>
#include <memory>

#include "bench/Measure.h"
#include "bench/dialog/Benches.h"
#include "tests/support/HostileServer.h"

namespace bench {
namespace {

constexpr int usualOptions = 102;
constexpr int leastSide = 100;
constexpr int manyQueues = 300;
constexpr double mostForFrozen = 1.7;
constexpr double mostForMany = 1.5;
const QString document = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf");

struct Freed {
  void operator()(void *memory) const { std::free(memory); }
};
template <class T>
using Owned = std::unique_ptr<T, Freed>;

// The root window tells of each top-level window that is shown.
class Screen {
 public:
  Screen() : m_connection(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(m_connection) != 0) return;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(m_connection);
  }
  ~Screen() { xcb_disconnect(m_connection); }
  Screen(const Screen &) = delete;
  Screen &operator=(const Screen &) = delete;

  bool isThere() const { return xcb_connection_has_error(m_connection) == 0; }

  void forgetEarlierWindows() {
    while (Owned<xcb_generic_event_t>(xcb_poll_for_event(m_connection))) {
    }
  }

  /// False where the screen went away.
  bool waitForWindow() {
    while (const Owned<xcb_generic_event_t> event{xcb_wait_for_event(m_connection)}) {
      if ((event->response_type & ~0x80) != XCB_MAP_NOTIFY) continue;
      const auto *mapped = reinterpret_cast<const xcb_map_notify_event_t *>(event.get());
      if (mapped->override_redirect == 0 && isLarge(mapped->window)) return true;
    }
    return false;
  }

 private:
  bool isLarge(xcb_window_t window) {
    const Owned<xcb_get_geometry_reply_t> geometry{
        xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr)};
    return geometry && geometry->width > leastSide && geometry->height > leastSide;
  }

  xcb_connection_t *m_connection;
};

double untilShown(Screen &screen, const QString &path, const QStringList &arguments) {
  screen.forgetEarlierWindows();
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
  process.setProcessEnvironment(environment);
  QElapsedTimer clock;
  clock.start();
  process.start(path, arguments);
  if (!screen.waitForWindow()) std::abort();
  const double seconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
  process.kill();
  process.waitForFinished();
  return seconds;
}

}  // namespace

void windows(orvek::test::PrivateCups &server, const QString &folder, int rounds) {
  const QString gtklp = QStandardPaths::findExecutable(QStringLiteral("gtklp"));
  Screen screen;
  if (gtklp.isEmpty() || !screen.isThere()) {
    std::printf("window on the screen: left out, gtklp or an X server is missing\n");
    return;
  }
  const QString queue = QStringLiteral("bench-window");
  server.addQueue(queue, ppdWithOptions(folder, usualOptions));
  line("window, 102 options, process", "gtklp",
       compareMedians(
           rounds,
           [&] {
             return untilShown(screen, program("orvek-print"),
                               {QStringLiteral("-d"), queue, document});
           },
           [&] {
             return untilShown(screen, gtklp, {QStringLiteral("-P"), queue, document});
           }),
       1, "ms", 0);
}

void windowsWithoutHelp(orvek::test::PrivateCups &server, const QString &folder, int rounds) {
  Screen screen;
  if (!screen.isThere()) {
    std::printf("window and its print server: left out, an X server is missing\n");
    return;
  }
  const QString queue = QStringLiteral("bench-few");
  server.addQueue(queue, ppdWithOptions(folder, usualOptions));
  const orvek::test::HostileServer frozen(orvek::test::Hostility::Silence);
  const auto shown = [&](const QString &host) {
    return untilShown(screen, program("orvek-print"),
                      {QStringLiteral("-h"), host, QStringLiteral("-d"), queue, document});
  };
  line("window, frozen server, process", "one that answers",
       compareMedians(
           rounds, [&] { return shown(frozen.hostAndPort()); },
           [&] { return shown(server.socket()); }),
       1, "ms", mostForFrozen);
  const auto few = compareMedians(
      rounds, [&] { return shown(server.socket()); }, [&] { return shown(server.socket()); });
  for (int i = 0; i < manyQueues; ++i) server.addQueue(QStringLiteral("many-%1").arg(i), {});
  const auto many = compareMedians(
      rounds, [&] { return shown(server.socket()); }, [&] { return shown(server.socket()); });
  line("window, 300 queues, process", "few queues", {many.own, few.own}, 1, "ms", mostForMany);
}

}  // namespace bench
