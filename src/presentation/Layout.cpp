#include "presentation/Layout.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <cmath>
#include <stdexcept>

#include "platform/QtText.h"
#include "presentation/LayoutText.h"

namespace kv {
namespace {

QJsonObject StyleOf(const QJsonObject& screen, const QString& style) {
  const QJsonValue value = screen.value(style);
  return (value.isObject() ? value : screen.value(QStringLiteral("Slate"))).toObject();
}

int Rounded(const QJsonValue& value) {
  return static_cast<int>(std::lround(value.toDouble()));
}

Qt::Alignment AlignmentOf(const QString& name) {
  if (name == QStringLiteral("center")) return Qt::AlignCenter;
  return Qt::AlignVCenter | (name == QStringLiteral("right") ? Qt::AlignRight : Qt::AlignLeft);
}

}  // namespace

Layout::Layout(std::string_view screen, std::string_view style) {
  const std::string_view text = LayoutText(screen);
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(
      QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())), &error);
  if (!document.isObject()) {
    throw std::out_of_range("layout " + std::string(screen) + ": " + error.errorString().toStdString());
  }
  const QJsonObject look = StyleOf(document.object(), ToQString(style));
  const QJsonArray size = look.value(QStringLiteral("size")).toArray();
  size_ = QSize(Rounded(size.at(0)), Rounded(size.at(1)));
  controls_ = look.value(QStringLiteral("controls")).toObject();
}

bool Layout::has(QStringView control) const {
  return controls_.contains(control);
}

PropertyBag Layout::bag(QStringView control) const {
  const auto found = controls_.find(control);
  if (found == controls_.end())
    throw std::out_of_range("no such control: " + control.toString().toStdString());
  return PropertyBag(found.value().toObject());
}

QRect Layout::rect(QStringView control) const {
  const auto found = controls_.find(control);
  if (found == controls_.end())
    throw std::out_of_range("no such control: " + control.toString().toStdString());
  const QJsonArray parts = found.value().toObject().value(QStringLiteral("rect")).toArray();
  return {Rounded(parts.at(0)), Rounded(parts.at(1)), Rounded(parts.at(2)), Rounded(parts.at(3))};
}

void Layout::Place(QStringView control, QWidget& widget) {
  const PropertyBag properties = bag(control);
  widget.setGeometry(rect(control));
  widget.setObjectName(control.toString());
  const QString name = properties.text(u"accessible", properties.text(u"caption"));
  if (!name.isEmpty()) widget.setAccessibleName(name);
  if (lastPlaced_ && lastPlaced_->window() == widget.window()) QWidget::setTabOrder(lastPlaced_, &widget);
  if ((widget.focusPolicy() & Qt::TabFocus) != 0) lastPlaced_ = &widget;
}

QLabel* Layout::NewLabel(QStringView control, QWidget* parent) {
  auto* label = new QLabel(parent);
  Dress(control, *label);
  return label;
}

void Layout::Dress(QStringView control, QLabel& label) {
  const PropertyBag properties = bag(control);
  label.setTextFormat(Qt::PlainText);
  label.setText(properties.text(u"caption"));
  label.setFont(properties.font(u"font", label.font()));
  label.setAlignment(AlignmentOf(properties.text(u"align")));
  label.setWordWrap(properties.flag(u"wrap"));
  label.setAttribute(Qt::WA_TransparentForMouseEvents);
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, properties.colour(u"color", Qt::white));
  label.setPalette(palette);
  Place(control, label);
}

}  // namespace kv
