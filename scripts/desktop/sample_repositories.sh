#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# sample_repositories.sh FOLDER [COUNT]: makes repositories to look at, with real git, and prints
# their paths in the order of the menu. Without a count they show, between them, all that a row can
# show; with one, they are so many small ones.
set -euo pipefail
samples=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../resources/samples" && pwd)
mkdir -p "$1"
cd "$1"

export GIT_CONFIG_GLOBAL=/dev/null GIT_CONFIG_NOSYSTEM=1
export GIT_AUTHOR_NAME=Sample GIT_AUTHOR_EMAIL=sample@localhost GIT_AUTHOR_DATE='2026-01-05T10:00:00Z'
export GIT_COMMITTER_NAME=Sample GIT_COMMITTER_EMAIL=sample@localhost
export GIT_COMMITTER_DATE='2026-01-05T10:00:00Z'

# make NAME: a repository on main with six committed files, and a shell in it.
make() {
    git init -q -b main "$1"
    cd "$1"
    local file
    for file in README.md Makefile config.yml main.c parser.c parser.h; do
        echo "$file of $1" >"$file"
    done
    commit "Start"
}
commit() {
    git add -A
    git commit -q --allow-empty -m "$1"
}
# The upstream branch stays where it is now; commits of either side come after.
# The remote has an address in the web, but git takes the one beside the repository in its place.
publish() {
    local remote=$PWD/.git/upstream.git address=https://github.com/example/${PWD##*/}.git
    git clone -q --bare . "$remote"
    git config "url.$remote.insteadOf" "$address"
    git remote add origin "$address"
    git fetch -q
    git branch -q -u origin/main
}
commits() { for ((i = 0; i < $1; i++)); do commit "$2 $i"; done; }
commits_behind() {
    local here
    here=$(git rev-parse HEAD)
    commits "$1" Theirs
    git push -q origin HEAD:main
    git reset -q --hard "$here"
}

busy_repository() {
    make harbour
    publish
    commits_behind 2
    commits 3 Ours
    for file in README.md config.yml; do echo more >>$file; done
    echo more >>main.c
    git add main.c
    git rm -q parser.h
    rm parser.c
    echo new >lexer.c
    git add lexer.c
    touch notes.txt todo.txt trace.log
}
feature_repository() {
    make lighthouse
    git checkout -q -b feature/fog-signal
    echo lamp >lamp.c
    git add lamp.c
    echo more >>main.c
}
repository_with_logo() {
    make kestrel
    cp "$samples/TarnwickLogo.png" .
    commit "Show our colours"
    publish
}
clean_repository() { make dotfiles; }
ahead_repository() {
    make website
    publish
    commits 1 Ours
}

if [[ -n ${2-} ]]; then
    for ((n = 1; n <= $2; n++)); do
        name=$(printf 'project-%03d' "$n")
        (make "$name"; ((n % 3)) || touch "untracked.txt"; ((n % 5)) || echo more >>main.c)
        echo "$PWD/$name"
    done
    exit
fi
(busy_repository)
(repository_with_logo)
(feature_repository)
(ahead_repository)
(clean_repository)
mkdir papers
for name in harbour kestrel lighthouse website dotfiles papers; do
    echo "$PWD/$name"
done
