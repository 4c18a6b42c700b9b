#include "presentation/PortraitWords.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "presentation/LayoutText.h"

namespace kv {

QString PortraitWords(int number) {
  const std::string_view text = LayoutText("PortraitWords");
  const QJsonObject table =
      QJsonDocument::fromJson(QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())))
          .object();
  return table.value(QString::number(number)).toString();
}

QString SpokenPortrait(int number) {
  const QString words = PortraitWords(number);
  const QString name = QStringLiteral("portrait %1").arg(number);
  return words.isEmpty() ? name : name + QStringLiteral(", ") + words;
}

}  // namespace kv
