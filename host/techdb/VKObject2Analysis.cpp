#include "VKObject2Analysis.h"

#include "VKObject2Signal.h"

// A signal is an analysis without a signal of its own, so what looks like a recursion ends after one step.
// NOLINTNEXTLINE(misc-no-recursion)
VKObject2Analysis::VKObject2Analysis(TechDB::TDatabase* db, qint64 key, const QString& name, Curve curve)
    : VKObject2(db, key, name) {
    // A signal is built on this constructor too: the curve it stands for is its own.
    if (curve == Curve::Stored) {
        m_tic = std::make_unique<VKObject2Signal>(db, key, name);
    }
}

VKObject2Analysis::~VKObject2Analysis() = default;

VKObjectType VKObject2Analysis::type() const {
    return VKObjectType::Analysis;
}

const VKObject2Signal* VKObject2Analysis::TIC() const {
    return m_tic.get();
}

QString VKObject2Analysis::folderName() {
    return QStringLiteral("analyses");
}

// NOLINTNEXTLINE(misc-no-recursion)
void VKObject2Analysis::setName(const QString& name) {
    VKObject2::setName(name);
    if (m_tic) {
        m_tic->setName(name);
    }
}
