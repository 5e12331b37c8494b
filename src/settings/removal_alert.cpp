// SPDX-License-Identifier: MIT
#include "settings/removal_alert.h"

#include "views/colors.h"

#include <QPushButton>

namespace tarnwick {

RemovalAlert::RemovalAlert(QWidget* parent)
    : QMessageBox(QMessageBox::Warning, {}, tr("Please confirm the removal"), QMessageBox::NoButton,
                  parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Tarnwick"));
    QPushButton* const remove = addButton(tr("Remove it"), QMessageBox::DestructiveRole);
    QPalette colors = remove->palette();
    colors.setColor(QPalette::ButtonText, colors::red(appearanceOf(colors)));
    remove->setPalette(colors);

    QPushButton* const keep = addButton(tr("Keep it"), QMessageBox::RejectRole);
    setDefaultButton(keep);
    setEscapeButton(keep);
    connect(this, &QMessageBox::finished, this, [this, remove] {
        if (clickedButton() == remove)
            Q_EMIT removed();
        else
            Q_EMIT kept();
    });
}

} // namespace tarnwick
