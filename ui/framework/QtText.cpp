#include "ui/framework/QtText.h"

#include <QStringList>

#include "platform/TextCodec.h"

namespace velmora {
namespace {

constexpr char16_t kBackslash = u'\\';
constexpr char16_t kYen = u'\u00A5';

}  // namespace

QString FromCp932(const std::string& cp932) {
  QString text = QString::fromStdString(ToUtf8(cp932));
  text.replace(kBackslash, kYen);
  return text;
}

std::string ToCp932(const QString& text) {
  QString bytesOnly = text;
  bytesOnly.replace(kYen, kBackslash);
  return ToCp932(std::string_view(bytesOnly.toStdString()));
}

QString CodePointsNotInCp932(const QString& text) {
  QString bytesOnly = text;
  bytesOnly.replace(kYen, kBackslash);
  QStringList codes;
  for (char32_t code : QString::fromStdString(NotInCp932(bytesOnly.toStdString())).toUcs4()) {
    codes << QStringLiteral("U+%1").arg(static_cast<uint>(code), 4, 16, QLatin1Char('0')).toUpper();
  }
  return codes.join(QLatin1Char(' '));
}

}  // namespace velmora
