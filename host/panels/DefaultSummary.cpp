// SPDX-License-Identifier: Apache-2.0
// Opens a second set of panels on a ticket that goes with them.

#include "host/panels/DefaultSummary.h"

#include "host/ppd/MarksTrial.h"
#include "platform/printing/PrintSessionHandle.h"

namespace orvek {
namespace {

// What panels announce while they open is marked and goes no further.
class Marker final : public PanelListener {
 public:
  explicit Marker(Marks &marks) : m_marks(marks) {}

  bool choiceAnnounced(const QString &option, const QString &choice) override {
    return m_marks.mark(option, choice);
  }
  void panelResized() override {}

 private:
  Marks &m_marks;
};

void markUntouchedJob(Marks &marks) {
  const QList<OptionChoice> now = marks.all();
  marks.markDefaults();
  for (const OptionChoice &mark : now) {
    if (marks.printer().isEquipment(mark.option)) marks.mark(mark.option, mark.choice);
  }
}

}  // namespace

void DefaultSummary::learn(const PanelSet &panels, Marks &marks) {
  const MarksTrial trial(marks);
  markUntouchedJob(marks);
  Marker marker(marks);
  PrintSessionHandle session;
  {
    PanelSet untouched(marker, {marks.printer().lend(), &session, std::make_shared<Ticket>()},
                       panels.panelsMayResize());
    untouched.open(panels.plugins());
    m_lines = untouched.summary();
  }
}

}  // namespace orvek
