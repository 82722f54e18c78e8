#include "ui/framework/QtCatalogue.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

namespace velmora {

bool InstallJapaneseCatalogue() {
  // Owned by the application object, so it goes with it.
  static QPointer<QTranslator> catalogue;
  if (catalogue) return true;
  const QLocale japanese(QLocale::Japanese, QLocale::Japan);
  QLocale::setDefault(japanese);
  auto* candidate = new QTranslator(QCoreApplication::instance());
  if (!candidate->load(japanese, QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)) ||
      !QCoreApplication::installTranslator(candidate)) {
    delete candidate;
    return false;
  }
  catalogue = candidate;
  return true;
}

}  // namespace velmora
