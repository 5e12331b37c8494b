#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""store_faults.py PROGRAM: starts the program, as installed, on preferences that it cannot read or
write, one fault after the other. Each time it must say on its standard output what happened and
why, run on until SIGTERM ends it in order, and leave all that was there before, in its place or
beside it. Run by root, it gives up the rights over other users' files."""
import ctypes
import hashlib
import os
import pathlib
import resource
import signal
import subprocess
import sys
import tempfile
import time

PROGRAM = sys.argv[1]
IS_ROOT = os.getuid() == 0
TIMEOUT = 20

LEFT_ALONE = "cannot be read ({}) and is left alone; nothing will be remembered"
SET_ASIDE = "is no preferences file and was set aside"
NOT_WRITTEN = "could not be written to {}: {}"
LIST = b'{"repos": "/nonexistent/a"}'


def huge(file):
    with file.open("wb") as opened:
        opened.write(b'{"repos": "')
        opened.truncate(500_000_000)


def of_another_user(file):
    file.write_bytes(LIST)
    os.chmod(file, 0)
    if IS_ROOT:
        os.chown(file, 65534, 65534)


def in_read_only_folder(file):
    file.write_bytes(LIST)
    os.chmod(file.parent, 0o500)


# What is done to the file, and what the program then says.
FAULTS = {
    "full disk": (lambda file: file.write_bytes(LIST), NOT_WRITTEN.format("{file}", "File too large")),
    "read-only folder": (in_read_only_folder, NOT_WRITTEN.format("{file}", "Permission denied")),
    "folder": (lambda file: file.mkdir(), LEFT_ALONE.format("not a regular file")),
    "pipe": (lambda file: os.mkfifo(file), LEFT_ALONE.format("not a regular file")),
    "endless device": (lambda file: file.symlink_to("/dev/zero"),
                       LEFT_ALONE.format("not a regular file")),
    "link to nowhere": (lambda file: file.symlink_to("/nonexistent/disk/preferences.json"),
                        LEFT_ALONE.format("No such file or directory")),
    "truncated": (lambda file: file.write_bytes(LIST[:-3]), SET_ASIDE),
    "garbage": (lambda file: file.write_bytes(bytes(range(256))), SET_ASIDE),
    "500 MB": (huge, LEFT_ALONE.format("more than 16777216 bytes")),
    "another user's": (of_another_user, LEFT_ALONE.format("Permission denied")),
}


def drop_rights_over_files():
    """CAP_DAC_OVERRIDE and its like leave the bounding set, and with exec() the process."""
    libc = ctypes.CDLL(None, use_errno=True)
    for capability in range(64 if IS_ROOT else 0):
        libc.prctl(24, capability, 0, 0, 0)  # PR_CAPBSET_DROP


def contents(folder):
    """Kind, and content or target, of all that is in the folder, whatever its name."""
    found = []
    for file in folder.iterdir():
        if file.is_symlink():
            found.append(("link", os.readlink(file)))
        elif file.is_file():
            found.append(("file", hashlib.sha256(file.read_bytes()).hexdigest()))
        else:
            found.append(("other", file.lstat().st_mode))
    return found


def wait_for(condition):
    deadline = time.monotonic() + TIMEOUT
    while not condition() and time.monotonic() < deadline:
        time.sleep(0.05)
    return condition()


def problem(fault, expected, home):
    """Plays the fault through; says what went wrong."""
    folder = home / "tarnwick"
    folder.mkdir()
    file = folder / "preferences.json"

    fault(file)
    before = contents(folder)

    def prepare():
        if "File too large" in expected:
            # What a full disk does to each write, but for the number of the error.
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (0, resource.RLIM_INFINITY))
        drop_rights_over_files()

    environment = dict(os.environ, XDG_CONFIG_HOME=str(home), HOME=str(home), LC_ALL="C.UTF-8",
                       XDG_RUNTIME_DIR=str(home), QT_QPA_PLATFORM="offscreen",
                       DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent")
    with subprocess.Popen([PROGRAM], env=environment, stdout=subprocess.PIPE,
                          preexec_fn=prepare) as process:
        os.set_blocking(process.stdout.fileno(), False)
        said = b""

        def has_said_it():
            nonlocal said
            said += process.stdout.read() or b""
            return expected.replace("{file}", str(file)) in said.decode()

        if not wait_for(has_said_it):
            process.kill()
            return f"it did not say {expected!r} but {said.decode()!r}"
        process.terminate()
        try:
            status = process.wait(TIMEOUT)
        except subprocess.TimeoutExpired:
            process.kill()
            return "SIGTERM did not end it"
    os.chmod(folder, 0o700)
    if status != 0:
        return f"it ended with {status}"
    lost = [each for each in before if each not in contents(folder)]
    return f"{lost} is gone" if lost else ""


failed = 0
for name, (fault, expected) in FAULTS.items():
    with tempfile.TemporaryDirectory(prefix="tarnwick-faults.") as home:
        found = problem(fault, expected, pathlib.Path(home))
    print(f"{'FAIL' if found else 'PASS'}: {name} {found}")
    failed += bool(found)
print(f"Totals: {len(FAULTS) - failed} passed, {failed} failed, 0 skipped")
sys.exit(failed > 0)
