#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace kel::qt::designer {

/// The controls in the widget box of Qt's designer, and for forms that are loaded at run time.
class DesignerWidgets final : public QObject, public QDesignerCustomWidgetCollectionInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit DesignerWidgets(QObject* parent = nullptr);
    ~DesignerWidgets() override;

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return Widgets_; }

private:
    QList<QDesignerCustomWidgetInterface*> Widgets_;
};

}  // namespace kel::qt::designer
