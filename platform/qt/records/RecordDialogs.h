#pragma once

#include <QPointer>
#include <QWidget>

#include "records/Questions.h"

namespace kel::qt {

/// What a person is asked about records, in boxes over the window.
class RecordDialogs final : public records::Questions {
public:
    explicit RecordDialogs(QWidget& window) : Window_(window) {}

    records::Unsaved aboutUnsaved() override;
    bool reallyDelete() override;
    std::optional<std::vector<records::Choice>> aboutDifferences(
        const std::vector<records::Difference>& differences) override;
    bool keepDeleted() override;
    void say(std::u16string_view message) override;

private:
    QWidget& Window_;
};

/// Whether an index may be added to a table that others have made, to sort it by a column.
bool mayMakeIndex(QWidget& window, const QString& column);

/// The page of all keys.
void showKeys(QWidget& window);

}  // namespace kel::qt
