#pragma once

#include "desktop/library_model.h"

#include <QStyledItemDelegate>

namespace kestrum::desktop {

/// Paints the flow of a test into a cell: the intake thick, the exhaust thin and dashed, up to the
/// test's own highest flow.
class Library_Curve : public QStyledItemDelegate {
public:
    Library_Curve(const Library_Model& model, QObject* parent)
        : QStyledItemDelegate(parent), model_(model) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    const Library_Model& model_;
};

} // namespace kestrum::desktop
