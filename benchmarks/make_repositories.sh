#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# make_repositories.sh FOLDER COUNT [--unranked]: makes what ./bench measures, with real git, where it
# is not there from an earlier run: COUNT repositories of 200 files in FOLDER/list, one with 100,000
# changed files, and the special ones of the figures without a target.
set -euo pipefail
mkdir -p "$1"
cd "$1"
export GIT_CONFIG_GLOBAL=/dev/null GIT_CONFIG_NOSYSTEM=1
export GIT_AUTHOR_NAME=Bench GIT_AUTHOR_EMAIL=bench@localhost
export GIT_COMMITTER_NAME=Bench GIT_COMMITTER_EMAIL=bench@localhost

commit() { git add -A && git commit -q -m "$1"; }

# template KIND: a repository whose working tree is in that state, beside an upstream branch.
template() {
    git init -q -b main "$1"
    cd "$1"
    for ((n = 0; n < 200; n++)); do
        mkdir -p "src/module-$((n / 20))"
        echo "File $n of a repository" >"src/module-$((n / 20))/file-$n.txt"
    done
    commit "Start"
    git config remote.origin.url "https://localhost/bench/$1.git"
    git branch -q upstream
    git branch -q -u upstream
    case $1 in
    modified | both) echo more | tee -a src/module-{0,4,9}/*5.txt >/dev/null ;;&
    both) git add -A && echo again | tee -a src/module-0/*5.txt >/dev/null ;;
    staged) echo new >new.txt && git rm -q src/module-1/file-20.txt && git add new.txt ;;
    untracked) touch notes.txt src/todo.txt ;;
    deleted) rm src/module-2/file-4?.txt ;;
    ahead) echo more >>src/module-0/file-0.txt && commit "Ours" ;;
    behind) git checkout -q upstream && echo more >>src/module-0/file-0.txt && commit "Theirs" && git checkout -q main ;;
    esac
    git gc -q
}

# A copy's index is settled by a status: it knows the files of the template until then.
fill_list() {
    local kinds=(clean modified staged both untracked deleted ahead behind) kind copy
    if [[ ! -d templates ]]; then
        mkdir templates.new
        for kind in "${kinds[@]}"; do (cd templates.new && template "$kind"); done
        mv templates.new templates
    fi
    mkdir -p list
    for ((n = 0; n < $1; n++)); do
        copy=list/$(printf 'repo-%03d' "$n")
        [[ -d $copy ]] && continue
        cp -a "templates/${kinds[n % ${#kinds[@]}]}" "$copy.new"
        git -C "$copy.new" status >/dev/null
        mv "$copy.new" "$copy"
    done
}

# 100,000 paths that are staged, added or missing, none of which needs a file: git takes the word of
# an entry marked "skip-worktree".
make_huge() {
    git init -q -b main huge.new
    cd huge.new
    local old new
    old=$(echo old | git hash-object -w --stdin)
    new=$(echo new | git hash-object -w --stdin)
    index() { awk -v blob="$1" -v first="$2" -v last="$3" 'BEGIN {
        for (n = first; n <= last; n++)
            printf "100644 %s\tsource/component-%06d/MainModule/description-%06d.txt\n", blob, n % 1000, n }' |
        git update-index --index-info; }
    index "$old" 1 70000
    git commit -q -m "Start"
    index "$new" 1 40000
    index "$new" 70001 100000
    git ls-files | awk '{ n = substr($0, length($0) - 9, 6) + 0 } n <= 40000 || n > 70000' |
        git update-index --skip-worktree --stdin
    cd ..
    mv huge.new huge
}

make_fresh_clones() {
    mkdir fresh.new
    for ((n = 0; n < 20; n++)); do cp -a templates/modified "fresh.new/clone-$n"; done
    mv fresh.new fresh
}

make_submodules() {
    cp -a templates/clean submodules.new
    for ((n = 0; n < 20; n++)); do
        git -C submodules.new -c protocol.file.allow=always submodule --quiet add \
            "$PWD/templates/clean" "sub-$n"
    done
    git -C submodules.new commit -q -m "Submodules"
    git -C submodules.new status >/dev/null
    mv submodules.new submodules
}

# 100,000 commits; 1,500 of the branch and 1,500 of its upstream are not the other's.
make_diverged() {
    git init -q -b main diverged.new
    commits() { awk -v branch="$1" -v from="$2" -v count="$3" 'BEGIN {
        for (n = 1; n <= count; n++) {
            printf "commit refs/heads/%s\ncommitter Bench <bench@localhost> %d +0000\n", branch, 1700000000 + n
            printf "data 1\nx\n"
            if (n == 1 && from) printf "from %s\n", from
            printf "M 100644 inline file\ndata <<END\n%s %d\nEND\n", branch, n
        } }'; }
    { # the branch goes on where it was
        commits main "" 98500
        commits upstream refs/heads/main 1500
        commits main "" 1500
    } | git -C diverged.new fast-import --quiet --force
    git -C diverged.new reset -q --hard
    git -C diverged.new branch -q -u upstream
    git -C diverged.new status >/dev/null
    mv diverged.new diverged
}

rm -rf ./*.new list/*.new # of a run that was interrupted
fill_list "$2"
[[ -d huge ]] || (make_huge)
if [[ ${3-} == --unranked ]]; then
    [[ -d fresh ]] || make_fresh_clones
    [[ -d submodules ]] || make_submodules
    [[ -d diverged ]] || make_diverged
fi
