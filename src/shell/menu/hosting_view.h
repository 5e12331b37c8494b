// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace tarnwick {

/// Holds one piece of content, edge to edge, for a menu to show. Each time the window around it is
/// shown, a `KeyWindow` is asked once to take the keyboard: an opened menu answers to keys at once.
class HostingView : public QWidget
{
    Q_OBJECT

public:
    /// Owns `rootView`.
    explicit HostingView(QWidget* rootView, QWidget* parent = nullptr);

    [[nodiscard]] QWidget& rootView() const { return *m_rootView; }

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

Q_SIGNALS:
    /// The menu is about to open; what the content changes now is in place when it does.
    void aboutToBeShown();
    void textChanged();
    void descriptionChanged();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* const m_rootView;
    QString m_text;
    std::function<QString()> m_description;
};

} // namespace tarnwick
