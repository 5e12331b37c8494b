// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>

namespace tarnwick {

class BundleInfo;
class GlyphButton;
class StandardUpdaterController;
class TextLine;

/// The global controls at the top of the menu: the program's name with its build number, and the
/// buttons to check for updates, refresh all repositories, open the settings and quit. Exactly 340
/// wide. Stops the process if there is no build number.
class RefreshView : public QWidget
{
    Q_OBJECT

public:
    RefreshView(std::unique_ptr<StandardUpdaterController> updaterController,
                const BundleInfo& bundle, QWidget* parent = nullptr);
    ~RefreshView() override;

    /// What the row says besides its buttons.
    [[nodiscard]] QString text() const;
    /// How far a refresh is, for the refresh button to say; empty while there is none.
    void setProgress(const QString& progress);
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void refreshRequested();
    void settingsRequested();

protected:
    void changeEvent(QEvent* event) override;

private:
    void layOut();
    void setFonts();
    void render();

    const std::unique_ptr<StandardUpdaterController> m_updaterController;
    const QString m_buildNumber;
    TextLine* m_name;
    GlyphButton* m_refresh = nullptr;
};

} // namespace tarnwick
