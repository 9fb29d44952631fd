#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

#include "controls/Classes.h"
#include "tools/qtwidgets/DesignerWriter.h"
#include "tools/qtwidgets/WidgetWriter.h"
#include "tools/toolbox/ToolboxPictures.h"

namespace {

void write(const std::string& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary);
    file << content;
    if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

}  // namespace

/// Writes the Qt widget class of every control, and what a designer shows of them, into a folder: kel-qtwidgets FOLDER
int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: kel-qtwidgets FOLDER\n";
        return 2;
    }
    try {
        const std::string folder = arguments[1];
        std::vector<const kel::ClassModel*> controls = kel::libraryClasses().all();
        std::erase_if(controls, [](const kel::ClassModel* model) { return !model->isControl(); });
        for (const kel::ClassModel* const model : controls) {
            const std::string path = folder + "/" + kel::qtwidgets::widgetName(*model);
            write(path + ".h", kel::qtwidgets::widgetHeader(*model));
            write(path + ".cpp", kel::qtwidgets::widgetSource(*model));
        }
        write(folder + "/KelDesignerFacts.cpp", kel::qtwidgets::designerFacts(kel::toolbox::inToolboxOrder(controls)));
    } catch (const std::exception& error) {
        std::cerr << "kel-qtwidgets: " << error.what() << '\n';
        return 2;
    }
    return 0;
}
