#include "presentation/frmResViewer.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QImage>
#include <QPainter>
#include <QTreeWidget>

namespace kv {
namespace {

constexpr int kKeyRole = Qt::UserRole;
constexpr int kMargin = 8;          // pixels around text and picture
constexpr int kPanelMinimum = 360;  // pixels

/// The kinds of picture by their number; all that is decoded here is a bitmap.
constexpr const char* kKinds[] = {"None", "Bitmap (*.bmp)", "Metafile (*.wmf)", "Icon/cursor (*.ico/*.cur)",
                                  "Enh Metafile (*.emf)"};

QString InfoOf(const Picture& picture) {
  const QSize size = picture.empty() ? QSize(0, 0) : picture.image()->size();
  return QStringLiteral("Image info:\nType: %1\nSyze: %2 x %3")
      .arg(QLatin1String(kKinds[picture.empty() ? 0 : 1]))
      .arg(size.width())
      .arg(size.height());
}

/// What a node is called: its key less the prefix, or its text when it has no key.
std::string NameOf(const QTreeWidgetItem* node) {
  const std::string key = node->data(0, kKeyRole).toString().toStdString();
  return key.empty() ? node->text(0).toStdString() : key.substr(1);
}

QTreeWidgetItem* NewNode(const std::string& key, const std::string& text) {
  auto* node = new QTreeWidgetItem({QString::fromStdString(text)});
  node->setData(0, kKeyRole, QString::fromStdString(key));
  return node;
}

}  // namespace

/// The picture in the middle, what it is in the corner.
class frmResViewer::Panel : public QWidget {
 public:
  explicit Panel(QWidget* parent) : QWidget(parent) { setMinimumSize(kPanelMinimum, kPanelMinimum); }

  void Show(const Picture& picture, const QString& info) {
    picture_ = picture;
    info_ = info;
    setAccessibleName(info);
    update();
  }
  [[nodiscard]] const QString& info() const { return info_; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), palette().dark());
    if (!picture_.empty()) {
      QSize size = picture_.image()->size();
      if (size.width() > width() || size.height() > height()) size.scale(this->size(), Qt::KeepAspectRatio);
      QRect place(QPoint(), size);
      place.moveCenter(rect().center());
      painter.setRenderHint(QPainter::SmoothPixmapTransform);
      painter.drawImage(place, *picture_.image());
    }
    if (info_.isEmpty()) return;
    const QRect text =
        painter.boundingRect(rect().adjusted(kMargin, kMargin, -kMargin, -kMargin), Qt::AlignLeft, info_);
    painter.fillRect(text.adjusted(-kMargin, -kMargin, kMargin, kMargin), QColor(0, 0, 0, 170));
    painter.setPen(Qt::white);
    painter.drawText(text, Qt::AlignLeft, info_);
  }

 private:
  Picture picture_;
  QString info_;
};

frmResViewer::frmResViewer(QWidget* parent)
    : QWidget(parent), tree_(new QTreeWidget(this)), picture1_(new Panel(this)) {
  setWindowTitle(QStringLiteral("Vntdata.dat"));
  tree_->setAccessibleName(QStringLiteral("Resources"));
  tree_->header()->hide();
  tree_->setMaximumWidth(240);
  auto* row = new QHBoxLayout(this);
  row->addWidget(tree_);
  row->addWidget(picture1_, 1);
  resize(1000, 640);
  connect(tree_, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* node) { Expand(node); });
  connect(tree_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* node) { NodeClick(node); });
}

bool frmResViewer::LoadFile(const std::string& path) {
  tree_->clear();
  picture1_->Show({}, {});
  pictures_.LoadResourceTree(index_, "Vntdata.dat", path);
  auto* root = NewNode({}, index_.title);
  tree_->addTopLevelItem(root);
  for (const TypeNode& type : index_.types) {
    auto* node = NewNode(type.key, type.text);
    root->addChild(node);
    AddNames(node, type);
  }
  root->setExpanded(true);
  for (std::size_t i = 0; i < index_.types.size(); ++i) {
    if (index_.types[i].expanded) root->child(static_cast<int>(i))->setExpanded(true);
  }
  return !index_.types.empty();
}

void frmResViewer::AddNames(QTreeWidgetItem* typeNode, const TypeNode& type) {
  qDeleteAll(typeNode->takeChildren());
  for (const NameNode& name : type.names) typeNode->addChild(NewNode(name.key, name.text));
}

void frmResViewer::Expand(QTreeWidgetItem* typeNode) {
  const QTreeWidgetItem* root = typeNode->parent();
  if (root == nullptr || root->parent() != nullptr) return;
  TypeNode& type = index_.types.at(static_cast<std::size_t>(root->indexOfChild(typeNode)));
  if (type.expanded) return;
  pictures_.ExpandType(type);
  AddNames(typeNode, type);
}

void frmResViewer::NodeClick(QTreeWidgetItem* node) {
  if (node == nullptr || node->parent() == nullptr || node->parent()->parent() == nullptr) return;
  const std::string type = NameOf(node->parent());
  if (!IsPictureType(type)) return picture1_->Show({}, {});
  const Picture picture = pictures_.LoadResPicture(ResourceTypeText(type), NameOf(node));
  picture1_->Show(picture, InfoOf(picture));
}

QString frmResViewer::InfoText() const {
  return picture1_->info();
}

}  // namespace kv
