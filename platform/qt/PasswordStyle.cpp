#include "platform/qt/PasswordStyle.h"

#include <QApplication>
#include <QHash>
#include <QPair>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleFactory>

namespace kel::qt {

namespace {

class PasswordStyle final : public QProxyStyle {
public:
    /// Null as `base` is the platform's default style.
    PasswordStyle(QStyle* base, char16_t character) : QProxyStyle(base), Character_(character) { setParent(qApp); }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override {
        if (hint == SH_LineEdit_PasswordCharacter) return Character_;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }

private:
    char16_t Character_;
};

}  // namespace

QStyle* passwordStyle(char16_t character) {
    static QHash<QPair<QString, char16_t>, QPointer<QStyle>> styles;
    const QString name = QApplication::style()->name();
    QPointer<QStyle>& style = styles[{name, character}];
    if (style.isNull()) style = new PasswordStyle(QStyleFactory::create(name), character);
    return style;
}

}  // namespace kel::qt
