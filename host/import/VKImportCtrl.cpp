#include "VKImportCtrl.h"

#include "ImportExcel.h"
#include "ImportRockEvalVI.h"
#include "VKImportInterface.h"

namespace {

std::unique_ptr<VKImportInterface> made(int number) {
    switch (number) {
    case VKImportCtrl::rockEvalFiles:
        return std::make_unique<ImportRockEvalVI>();
    case VKImportCtrl::excelTables:
        return std::make_unique<ImportExcel>();
    default:
        return nullptr;
    }
}

} // namespace

VKImportCtrl::VKImportCtrl(bool) {}

VKImportCtrl::~VKImportCtrl() {
    for (const std::weak_ptr<VKImportInterface*>& given : m_given) {
        if (const auto left = given.lock()) {
            delete *left;
        }
    }
}

VKImportInterface* VKImportCtrl::getDll(int number) {
    std::unique_ptr<VKImportInterface> reader = made(number);
    if (reader != nullptr) {
        m_given.push_back(reader->m_self);
    }
    return reader.release();
}
