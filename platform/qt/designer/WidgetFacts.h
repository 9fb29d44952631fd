#pragma once

#include <span>

class QWidget;

/// What a designer of forms shows of the widgets. The table is made from the type model.
namespace kel::qt::designer {

/// A property that a form keeps. Texts are UTF-8.
struct PropertyFacts {
    const char* name;
    const char* help;
    /// How a text is edited, "singleline" or "multiline"; nullptr for other types.
    const char* editor;
    bool isTranslated;  ///< a text for people
    /// Usual texts, for those that are worth a dialog with a sample of what they make.
    std::span<const char* const> usual;
};

struct WidgetFacts {
    const char* className;
    const char* title;       ///< "Progress Bar"
    const char* objectName;  ///< "progressBar"
    const char* help;
    const char* const* picture;  ///< an XPM
    QWidget* (*make)(QWidget* parent);
    std::span<const PropertyFacts> properties;
};

std::span<const WidgetFacts> widgetFacts();

}  // namespace kel::qt::designer
