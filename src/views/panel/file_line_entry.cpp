// SPDX-License-Identifier: MIT
#include "views/panel/file_line_entry.h"

#include "model/git_quoting.h"
#include "views/colors.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace tarnwick {

namespace {

struct ChangeKind
{
    QStringView prefix;
    const char16_t* symbol;
    QColor (*color)(Appearance);
};

constexpr qsizetype codeLength = 3;

constexpr std::array changeKinds{
    ChangeKind{u"A  ", u"doc.fill", colors::green},
    ChangeKind{u"D  ", u"trash.fill", colors::red},
    ChangeKind{u" M ", u"pencil", colors::orange},
    ChangeKind{u"M  ", u"tray.full.fill", colors::teal},
    ChangeKind{u"?? ", u"questionmark.diamond.fill", colors::yellow},
    ChangeKind{u" D ", u"trash", colors::indigo},
};

} // namespace

FileLineEntry fileLineEntry(const QString& quotedLine, Appearance appearance)
{
    const QString line = quotedLine.left(codeLength) + unquotedGitPath(quotedLine.mid(codeLength));
    const QString name = line.endsWith(u'/') ? line.chopped(1) : line;
    FileLineEntry entry{name.split(u'/').constLast(), line.mid(codeLength), {}, {}};
    const auto* const kind = std::ranges::find_if(
        changeKinds, [&line](const ChangeKind& k) { return line.startsWith(k.prefix); });
    if (kind != changeKinds.end()) {
        // Only a file at the top level has the code in its title.
        entry.title.remove(kind->prefix.toString());
        entry.symbol = QString::fromUtf16(kind->symbol);
        entry.color = kind->color(appearance);
    }
    return entry;
}

} // namespace tarnwick
