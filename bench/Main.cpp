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
            {"loading a form of 1,000 text fields, headless", "LoadThousandFields", {}, 20e6},
        });
}
