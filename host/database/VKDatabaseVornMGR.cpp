#include "VKDatabaseVornMGR.h"

#include <QCoreApplication>

VKDatabaseVornMGR::VKDatabaseVornMGR() {
    // Qt's database drivers don't outlive the application object.
    qAddPostRoutine([] { getInstance()->close(); });
}

VKDatabaseVornMGR* VKDatabaseVornMGR::getInstance() {
    static VKDatabaseVornMGR only;
    return &only;
}

VKVornDatabaseInterface* VKDatabaseVornMGR::db(int number) {
    switch (number) {
    case workingCatalogue:
        return &m_working;
    case publishedCatalogue:
        return &m_published;
    default:
        return nullptr;
    }
}
