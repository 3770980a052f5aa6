// SPDX-License-Identifier: Apache-2.0
// Loads Qt Designer files through QUiLoader and hands their widgets to the owner.

#include "platform/ui/InterfaceResource.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QPointer>
#include <QUiLoader>
#include <QVariant>
#include <QWidget>
#include <map>
#include <memory>

#include "platform/system/Log.h"
#include "platform/ui/Actions.h"
#include "platform/ui/Bundle.h"
#include "platform/ui/Frames.h"
#include "platform/ui/PlainText.h"
#include "platform/ui/ResourceBounds.h"

namespace orvek {
namespace {

// Ties the life of a loaded tree to its owner without making the owner a widget.
class LoadedTree : public QObject {
 public:
  LoadedTree(QWidget *root, QObject *owner) : QObject(owner), m_root(root) {}
  ~LoadedTree() override { delete m_root; }
  LoadedTree(const LoadedTree &) = delete;
  LoadedTree &operator=(const LoadedTree &) = delete;

 private:
  QPointer<QWidget> m_root;
};

// A QUiLoader looks through every library path for Designer plug-ins, and they are costly to find
// and never needed: our resources hold Qt's own widgets only.
QUiLoader &loader() {
  static const std::unique_ptr<QUiLoader> instance = [] {
    const QStringList paths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({});
    auto made = std::make_unique<QUiLoader>();
    QCoreApplication::setLibraryPaths(paths);
    return made;
  }();
  return *instance;
}

/// A resource's controls, nobody's so far; null where it does not load, and why.
struct MadeTree {
  QWidget *root = nullptr;
  QString problem = {};
};

MadeTree makeTree(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {nullptr, file.errorString()};
  QByteArray bytes = file.readAll();
  if (const QString problem = lengthProblem(bytes); !problem.isNull()) return {nullptr, problem};
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  QWidget *root = loader().load(&buffer, nullptr);
  adoptDesign(root);
  return {root, root == nullptr ? loader().errorString() : QString()};
}

/// By their resources' paths.
std::map<QString, MadeTree> &madeAhead() {
  static std::map<QString, MadeTree> trees;
  return trees;
}

void localize(QWidget *widget, const Bundle &bundle) {
  widget->setToolTip(plainToolTip(bundle.localizedString(widget->toolTip())));
  widget->setAccessibleName(bundle.localizedString(widget->accessibleName()));
}

void connectTree(QWidget *root, QObject *owner, const Bundle &bundle) {
  QList<QWidget *> widgets = root->findChildren<QWidget *>();
  widgets.prepend(root);
  for (QWidget *widget : widgets) {
    const QByteArray name = widget->objectName().toLatin1();
    if (name.isEmpty()) continue;
    if (owner->metaObject()->indexOfProperty(name.constData()) >= 0) {
      owner->setProperty(name.constData(), QVariant::fromValue(widget));
    }
    connectToOwner(widget, owner);
    localize(widget, bundle);
  }
}

}  // namespace

bool loadInterface(const Bundle *bundle, const QString &name, QObject *owner) {
  if (bundle == nullptr || owner == nullptr) return false;
  const QString path = bundle->pathForResource(name, QStringLiteral("ui"));
  if (path.isNull()) {
    logLine(QStringLiteral("%1: no interface resource \"%2\"").arg(bundle->path(), name));
    return false;
  }
  const auto ahead = madeAhead().extract(path);
  const MadeTree tree = ahead.empty() ? makeTree(path) : ahead.mapped();
  if (tree.root == nullptr) {
    logLine(QStringLiteral("%1: %2").arg(path, tree.problem));
    return false;
  }
  new LoadedTree(tree.root, owner);
  connectTree(tree.root, owner, *bundle);
  return true;
}

InterfaceAhead::InterfaceAhead(const Bundle &bundle)
    : m_path(bundle.pathForOnlyResource(QStringLiteral("ui"))) {
  if (!m_path.isNull() && !madeAhead().contains(m_path)) {
    madeAhead().emplace(m_path, makeTree(m_path));
  }
}

InterfaceAhead::~InterfaceAhead() {
  if (const auto left = madeAhead().extract(m_path)) delete left.mapped().root;
}

}  // namespace orvek
