// SPDX-License-Identifier: MIT
#pragma once

#include "model/bound_setting.h"

#include <QWidget>

#include <memory>

namespace tarnwick {

class PictureView;
class PreferencesStore;
class RepoViewModel;
class Spinner;
class TextLine;

/// A repository's row in the menu: picture and name, and for a repository its branch and a coloured
/// summary of its working tree. Follows the record, the two options that concern it and the palette
/// while it lives. Exactly 340 wide; as high as its text needs, which `sizeHint()` tells.
class RepoStatusView : public QWidget
{
    Q_OBJECT

public:
    RepoStatusView(std::shared_ptr<RepoViewModel> vm, PreferencesStore& store,
                   QWidget* parent = nullptr);

    /// All that the row says, as one plain sentence without glyphs.
    [[nodiscard]] QString text() const;
    /// What stands in that for the record's name, to be told from another of the same name.
    void setSpokenName(const QString& name) { m_spokenName = name; }
    /// What git says beyond that, in words; empty if there is nothing. Reads the whole status.
    [[nodiscard]] QString description() const;

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void textChanged();

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();
    void observe();
    void setFonts();
    void render();
    void renderBranch();
    void renderStatus();
    void renderSpinner();

    const std::shared_ptr<RepoViewModel> m_vm;
    QString m_spokenName;
    BoundSetting m_onlyIcons;
    BoundSetting m_showCleanRepoStatus;

    PictureView* m_picture;
    TextLine* m_name;
    PictureView* m_branchSymbol;
    TextLine* m_branch;
    PictureView* m_cleanSymbol;
    TextLine* m_clean;
    TextLine* m_summary;
    Spinner* m_spinner;

    QWidget* m_branchLine;
    QWidget* m_cleanLine;
};

} // namespace tarnwick
