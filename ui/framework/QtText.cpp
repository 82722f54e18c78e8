#include "ui/framework/QtText.h"

#include "platform/TextCodec.h"

namespace velmora {

QString FromCp932(const std::string& cp932) { return QString::fromStdString(ToUtf8(cp932)); }

std::string ToCp932(const QString& text) { return ToCp932(std::string_view(text.toStdString())); }

}  // namespace velmora
