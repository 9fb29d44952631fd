#pragma once

#include <QDesignerTaskMenuExtension>
#include <QExtensionFactory>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include "platform/qt/designer/WidgetFacts.h"

namespace kel::qt::designer {

/// What the menu of a field on a form offers to edit, and a double click on it opens: the items of its list with their
/// tags, its format with a sample, its caption or its text.
class FieldMenu final : public QObject, public QDesignerTaskMenuExtension {
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    /// `field` is the designer's, and outlives this.
    FieldMenu(QWidget& field, const WidgetFacts& facts, QObject* parent);

    QList<QAction*> taskActions() const override { return Actions_; }
    QAction* preferredEditAction() const override { return Actions_.value(0); }

private:
    void add(const QString& title, void (FieldMenu::*edit)());
    void editItems();
    void editFormat();
    void editText();
    void editCaption();
    QString text(const char* property) const;
    /// In one step that can be undone.
    void put(const QString& deed, const QList<QPair<const char*, QString>>& values);

    QWidget& Field_;
    const WidgetFacts& Facts_;
    QList<QAction*> Actions_;
};

/// Makes them for the widgets of one class.
class FieldMenuFactory final : public QExtensionFactory {
public:
    FieldMenuFactory(const WidgetFacts& facts, QExtensionManager* manager);

protected:
    QObject* createExtension(QObject* object, const QString& iid, QObject* parent) const override;

private:
    const WidgetFacts& Facts_;
};

}  // namespace kel::qt::designer
