#pragma once

#include <QWidget>

#include "forms/Form.h"
#include "records/Questions.h"
#include "records/RecordForm.h"

namespace kel::qt {

/// Records from and to lists in files, as a person has them taken in and written.
class ListDialogs {
public:
    /// `unseen` is a home that shows nothing, where lists are read. All of it outlives the dialogs.
    ListDialogs(QWidget& window, const FormFile& form, records::RecordForm& records, records::Questions& questions,
                Home& unseen)
        : Window_(window), File_(form), Records_(records), Questions_(questions), Unseen_(unseen) {}

    /// Whether records may have come.
    bool importList();
    void exportList();

private:
    template <class Action>
    void attempt(Action action);

    QWidget& Window_;
    const FormFile& File_;
    records::RecordForm& Records_;
    records::Questions& Questions_;
    Home& Unseen_;
};

}  // namespace kel::qt
