#pragma once

#include <QDialog>
#include <QTableWidget>

namespace kel::qt::designer {

/// The items of a list with their tags, side by side.
class ListDialog final : public QDialog {
    Q_OBJECT

public:
    /// Both as the properties of a combo box have them, with commas between the items.
    ListDialog(const QString& items, const QString& tags, QWidget* parent);

    QString items() const;
    QString tags() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QAction* addAction(const QString& title, const QKeySequence& keys, void (ListDialog::*deed)());
    void addItem();
    void removeItem();
    void moveUp() { move(-1); }
    void moveDown() { move(1); }
    void paste();
    void move(int by);
    void insert(int row, const QString& item, const QString& tag);
    void showActions();

    QTableWidget* Table_;
    QAction* Remove_ = nullptr;
    QAction* Up_ = nullptr;
    QAction* Down_ = nullptr;
};

}  // namespace kel::qt::designer
