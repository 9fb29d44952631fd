#include <QApplication>

#include "bench/Table.h"

int main(int argc, char** argv) {
    int none = 1;
    QApplication application(none, argv);
    return kel::bench::runTable(
        argc, argv,
        {
            {"making and destroying a text field / label and line edit", "TextWidget", {"LabelAndLineEdit"}, 1.2},
            {"a key into a text field / line edit", "KeyIntoTextWidget", {"KeyIntoLineEdit"}, 1.2},
            {"reading a number property by name", "LateBoundRead", {}, 100},
            {"reading a text property by name", "LateBoundTextRead", {}, 100},
            {"display text of 1,234,567.891 / QLocale", "DisplayNumber", {"DisplayNumberByQLocale"}, 0.5},
            {"display text of 1,234,567.891 / ICU", "DisplayNumber", {"DisplayNumberByIcu"}, 0.5},
            {"display text of a number of 17 digits / QLocale", "DisplayLongNumber", {"DisplayLongNumberByQLocale"}, 1},
            {"the same by #,##0.00;(#,##0.00) / QLocale", "FormatByExpression", {"DisplayNumberByQLocale"}, 1},
            {"reading 1,234,567.89 / QLocale", "ReadNumber", {"ReadNumberByQLocale"}, 0.1},
            {"reading 1,234,567.89 / ICU", "ReadNumber", {"ReadNumberByIcu"}, 0.1},
            {"loading a form of 1,000 text fields, headless", "LoadThousandFields", {}, 20e6},
        });
}
