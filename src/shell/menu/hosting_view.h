// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace tarnwick {

/// Holds one piece of content, edge to edge, for a menu to show.
class HostingView : public QWidget
{
    Q_OBJECT

public:
    /// Owns `rootView`.
    explicit HostingView(QWidget* rootView, QWidget* parent = nullptr);

    /// What the content says, for those who do not see it.
    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString& text);
    /// What it says beyond that. The function is called only when somebody asks;
    /// `descriptionChanged()` is to be emitted when its result may be another one.
    [[nodiscard]] QString description() const
    {
        return m_description ? m_description() : QString();
    }
    void setDescription(std::function<QString()> description);

    /// Called each time the window around it is shown, whether the view is within its area or not:
    /// asks a `KeyWindow` to take the keyboard, so that an opened menu answers to keys at once.
    void viewDidMoveToWindow() const;

Q_SIGNALS:
    /// The menu is about to open; what the content changes now is in place when it does.
    void aboutToBeShown();
    void textChanged();
    void descriptionChanged();

private:
    QString m_text;
    std::function<QString()> m_description;
};

} // namespace tarnwick
