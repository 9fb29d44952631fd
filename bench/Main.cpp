#include <QApplication>

#include "bench/Memory.h"
#include "bench/Table.h"

int main(int argc, char** argv) {
    int none = 1;
    QApplication application(none, argv);
    const int status = kel::bench::runTable(
        argc, argv,
        {
            {"a key into a shown text field, painted / line edit", "PaintKeyOfTextWidget", {"PaintKeyOfLineEdit"}, 0.6},
            {"a key into a shown number field, painted / double spin box",
             "PaintKeyOfNumberWidget",
             {"PaintKeyOfDoubleSpinBox"},
             0.6},
            {"a key into a shown date field, painted / date edit", "PaintKeyOfDateWidget", {"PaintKeyOfDateEdit"}, 0.6},
            {"a key into a shown combo field, painted / combo box",
             "PaintKeyOfComboWidget",
             {"PaintKeyOfComboBox"},
             0.6},
            {"a key that moves a single pixel, painted", "PaintKeyOfPixel", {}, 1e6},
            {"opening a form of 30 fields, painted / plain Qt", "OpenForm/30", {"OpenPlainForm/30"}, 0.6},
            {"opening a form of 300 fields, painted / plain Qt", "OpenForm/300", {"OpenPlainForm/300"}, 0.45},
            {"opening a form of 1,200 fields, painted / plain Qt", "OpenForm/1200", {"OpenPlainForm/1200"}, 0.4},
            {"making and destroying a text field / label and line edit", "TextWidget", {"LabelAndLineEdit"}, 1.2},
            {"a key into a text field / line edit", "KeyIntoTextWidget", {"KeyIntoLineEdit"}, 1.2},
            {"reading a number property by name", "LateBoundRead", {}, 100},
            {"reading a text property by name", "LateBoundTextRead", {}, 100},
            {"making and destroying a number field / label and double spin box",
             "NumberWidget",
             {"LabelAndDoubleSpinBox"},
             1},
            {"making and destroying a date field / label and date edit", "DateWidget", {"LabelAndDateEdit"}, 0.8},
            {"a key into a date field / date edit", "KeyIntoDateWidget", {"KeyIntoDateEdit"}, 0.5},
            {"a step by the Up key in a date field / date edit", "StepOfDateWidget", {"StepOfDateEdit"}, 0.5},
            {"a key into a number field / double spin box", "KeyIntoNumberWidget", {"KeyIntoDoubleSpinBox"}, 0.8},
            {"display text of 1,234,567.891 / QLocale", "DisplayNumber", {"DisplayNumberByQLocale"}, 0.5},
            {"display text of 1,234,567.891 / ICU", "DisplayNumber", {"DisplayNumberByIcu"}, 0.5},
            {"display text of a number of 17 digits / QLocale", "DisplayLongNumber", {"DisplayLongNumberByQLocale"}, 1},
            {"the same by #,##0.00;(#,##0.00) / QLocale", "FormatByExpression", {"DisplayNumberByQLocale"}, 1},
            {"reading 1,234,567.89 / QLocale", "ReadNumber", {"ReadNumberByQLocale"}, 0.1},
            {"reading 1,234,567.89 / ICU", "ReadNumber", {"ReadNumberByIcu"}, 0.1},
            {"32,767 items into a list / QComboBox", "LoadList", {"LoadListIntoComboBox"}, 1},
            {"a list of them into a combo field / bare splitting", "PutList", {"SplitList"}, 2},
            {"finding a beginning in them for the first time", "FirstSearch", {}, 40e6},
            {"finding a beginning in them / QComboBox", "FindBeginning", {"FindBeginningByComboBox"}, 0.01},
            {"the same / in 100 items", "FindBeginning", {"FindBeginningInShortList"}, 10},
            {"finding an item in them / QComboBox", "FindItem", {"FindItemByComboBox"}, 0.01},
            {"making and destroying a combo field / label and combo box", "ComboWidget", {"LabelAndComboBox"}, 1},
            {"a key into a combo field of 32,767 items / combo box", "KeyIntoComboWidget", {"KeyIntoComboBox"}, 0.25},
            {"opening the list of 32,767 items", "OpenList", {}, 100e6},
            {"reading a list of 32,767 items / of a tenth", "ReadLongList", {"ReadTenthOfList"}, 15},
            {"showing 15/03/2013 / QDate", "DisplayDate", {"DisplayDateByQDate"}, 0.1},
            {"showing 15/03/2013 / strftime", "DisplayDate", {"DisplayDateByStrftime"}, 2},
            {"reading 15/03/2013 / QDate", "ReadDate", {"ReadDateByQDate"}, 0.1},
            {"reading 15/03/2013 / strptime", "ReadDate", {"ReadDateByStrptime"}, 2},
            {"reading 15 March 2013 in dd/mm/yyyy / QDate", "ReadWrittenDate", {"ReadDateByQDate"}, 1},
            {"a step of a job that does not move the bar", "StepOfJob", {}, 30},
            {"the same without the time left", "StepOfJobWithoutTime", {}, 30},
            {"a moving bar / QProgressBar", "MoveProgressBarWidget", {"MoveProgressBar"}, 1},
            {"loading a form of 1,000 text fields, headless", "LoadThousandFields", {}, 20e6},
        });
    if (argc == 1) kel::bench::printMemory();
    return status;
}
