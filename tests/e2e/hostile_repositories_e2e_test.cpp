// SPDX-License-Identifier: MIT
#include "e2e/desktop.h"
#include "support/table.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <unistd.h>
#include <vector>

using namespace tarnwick::test;

namespace {

struct Hostile
{
    /// Its folder, and what a shell does in it before the program starts.
    QString folder;
    QString command;
    /// What comes after the name in its row of the menu.
    QString state;
};

using Hostiles = std::vector<Hostile>;

const QString oneUntracked = u", branch main, 1 untracked"_s;
/// Makes a PNG file of 5790 by 5790 pixels with this interlace method.
const QString hugePicture = uR"(python3 -c "
import struct, sys, zlib
def chunk(kind, data):
    return struct.pack('>I', len(data)) + kind + data + struct.pack('>I', zlib.crc32(kind + data))
sys.stdout.buffer.write(b'\x89PNG\r\n\x1a\n'
    + chunk(b'IHDR', struct.pack('>IIBBBBB', 5790, 5790, 8, 6, 0, 0, %1))
    + chunk(b'IDAT', zlib.compress(bytes(5790 * 4 + 1) * 5790, 9)) + chunk(b'IEND', b''))
" > TarnwickLogo.png)"_s;

} // namespace

/// Repositories from which nothing may be run, and which must not hold the program up.
class HostileRepositoriesE2eTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreShownAndNothingIsRun_data()
    {
        const auto row = table<Hostiles>("repositories");
        row("names",
            {{u"$(touch pwned)"_s, u"touch '$(touch pwned)'"_s, oneUntracked},
             {u"-C --help"_s, u"touch -- -rf"_s, oneUntracked},
             {u"it's \"quoted\" \\"_s, u"touch \"$(printf 'line\\nfeed')\" \"$(printf '\\377')\""_s,
              u", branch main, 2 untracked"_s},
             {QStringList(15, QString(250, u'd')).join(u'/'), u"touch \"$(printf '%0250d' 0)\""_s,
              oneUntracked}});
        // Root may look into a closed folder.
        row("entries", {{u"to nowhere"_s, u"rm -rf .git; ln -s nowhere .git"_s, {}},
                        {u"pipe"_s, u"rm -rf .git; mkfifo .git"_s, u", branch , Repo is clean"_s},
                        {u"loop"_s, u"rm -rf .git; ln -s .git .git"_s, {}},
                        {u"closed"_s, u"chmod 0 ."_s,
                         ::geteuid() == 0 ? u", branch main, Repo is clean"_s : QString()}});
        row("pictures",
            {{u"pipe"_s, u"mkfifo TarnwickLogo.png"_s, u", branch main, Repo is clean"_s},
             {u"device"_s, u"ln -s /dev/zero TarnwickLogo.png"_s, oneUntracked},
             {u"huge"_s, hugePicture.arg(0), oneUntracked},
             {u"huge and interlaced"_s, hugePicture.arg(1), oneUntracked}});
    }

    void rowsAreShownAndNothingIsRun()
    {
        QFETCH(Hostiles, repositories);
        std::vector<std::unique_ptr<TemporaryRepository>> made;
        QStringList dirs;
        QStringList rows;
        for (const auto& [folder, command, state] : repositories) {
            made.push_back(std::make_unique<TemporaryRepository>(folder));
            made.back()->run({command});
            dirs += made.back()->dir();
            rows += folder.section(u'/', -1) + state;
        }
        const RunningProgram program({{u"repos"_s, dirs.join(u'\n')}});
        QVERIFY(openMenu());
        static_cast<void>(QTest::qWaitFor([&] { return menuRows() == rows; }, 10000));
        QCOMPARE(menuRows(), rows);
        key(u"Escape"_s);
        for (const QString& dir : std::as_const(dirs)) {
            QFile::setPermissions(dir, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            QVERIFY(!QFile::exists(dir + u"/pwned"_s));
        }
    }
};

TARNWICK_TEST(HostileRepositoriesE2eTest)

#include "hostile_repositories_e2e_test.moc"
