#pragma once

#include <memory>
#include <vector>

class VKImportInterface;

/// The readers of one import pass.
class VKImportCtrl {
public:
    static constexpr int excelTables = 24;
    static constexpr int rockEvalFiles = 25;

    /// The flag asks for readers that keep what they read for a later pass; none does, and it is not used.
    explicit VKImportCtrl(bool keep);
    /// Deletes the readers that are left.
    ~VKImportCtrl();
    VKImportCtrl(const VKImportCtrl&) = delete;
    VKImportCtrl& operator=(const VKImportCtrl&) = delete;

    /// A new reader of this number, which the caller may delete; null for a number that no reader has.
    VKImportInterface* getDll(int number);

private:
    std::vector<std::weak_ptr<VKImportInterface*>> m_given;
};
