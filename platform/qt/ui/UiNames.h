#pragma once

#include <QHash>
#include <QSet>
#include <QString>

#include "forms/file/FormModel.h"

namespace kel::qt {

/// Names of a form's blocks as programs can have them: words of C++, no two the same.
class UiNames {
public:
    /// The same for a block whenever it is asked: "optKind_1" for the second of a control array.
    QString of(FormBlockId id, const FormBlock& block);

private:
    QHash<FormBlockId, QString> Names_;
    QSet<QString> Taken_;
};

}  // namespace kel::qt
