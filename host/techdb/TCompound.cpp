#include "TCompound.h"

#include <QLocale>

namespace TechDB {

void TCompound::setMW(double mass) {
    set("MW", QString::number(mass, 'g', QLocale::FloatingPointShortest));
}

void TCompound::set(const char* name, const QString& value) {
    setProperty(QLatin1String(name), value);
    setModified(true);
}

} // namespace TechDB
