// SPDX-License-Identifier: MIT
#include "shell/menu/hosting_view.h"

#include "shell/menu/key_window.h"

#include <QVBoxLayout>

#include <utility>

namespace tarnwick {

HostingView::HostingView(QWidget* rootView, QWidget* parent)
    : QWidget(parent)
{
    setMinimumSize(10, 10);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(rootView);
}

void HostingView::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    Q_EMIT textChanged();
}

void HostingView::setDescription(std::function<QString()> description)
{
    m_description = std::move(description);
}

void HostingView::viewDidMoveToWindow() const
{
    if (auto* const keyWindow = dynamic_cast<KeyWindow*>(window()))
        keyWindow->becomeKeyWindow();
}

} // namespace tarnwick
