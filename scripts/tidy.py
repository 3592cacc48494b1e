#!/usr/bin/env python3
"""Runs clang-tidy over every file of a build's compile commands, in parallel.

A file is skipped if it was clean before and neither it, nor a header of the project that it
includes, nor the checks, nor the installed tools and libraries have changed since. What was clean is
remembered for all checkouts of the user.
"""
import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
PLUGIN = ROOT / "scripts/own_code_only.cpp"
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "talvex-tidy"
INCLUDE = re.compile(rb'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)
FORGET_AFTER = 60 * 24 * 60 * 60  # seconds


def output_of(*command):
    return subprocess.run(command, cwd=ROOT, capture_output=True, check=True).stdout


@functools.cache
def with_headers(path):
    """The file and all headers of the project that it includes. An include tells the folder too, or
    it is from the file's own folder."""
    found = {path}
    waiting = [path]
    while waiting:
        source = waiting.pop()
        for name in INCLUDE.findall(source.read_bytes()):
            for header in (source.parent / os.fsdecode(name), ROOT / os.fsdecode(name)):
                if header.is_file() and header not in found:
                    found.add(header)
                    waiting.append(header)
    return sorted(found)


def settings(folder):
    """The files that tell the checks for a folder."""
    return [each / ".clang-tidy" for each in (folder, *folder.parents)
            if ROOT in (each, *each.parents) and (each / ".clang-tidy").is_file()]


def digest(shared, entry):
    source = pathlib.Path(entry["file"])
    result = hashlib.sha256(shared)
    result.update(entry["command"].replace(str(ROOT), "").encode())
    for path in with_headers(source) + settings(source.parent) + [PLUGIN]:
        result.update(str(path.relative_to(ROOT)).encode() + path.read_bytes())
    return result.hexdigest()


def check(build, plugin, shared, entry):
    stamp = CACHE / digest(shared, entry)
    if stamp.exists():
        stamp.touch()
        return True
    run = subprocess.run(["clang-tidy", f"-load={plugin}", "--quiet", "-p", build, entry["file"]],
                         capture_output=True, text=True)
    # With settings that it can't read, clang-tidy checks nothing and reports success.
    clean = run.returncode == 0 and "Error parsing" not in run.stderr
    if clean:
        stamp.touch()
    else:
        print(f"{entry['file']}\n{run.stdout}{run.stderr}", flush=True)
    return clean


def make_plugin(build):
    plugin = build / "own_code_only.so"
    if not plugin.exists() or plugin.stat().st_mtime < PLUGIN.stat().st_mtime:
        version = re.search(rb"version (\d+)", output_of("clang-tidy", "--version"))[1].decode()
        subprocess.run(["g++", "-std=c++17", "-O1", "-fPIC", "-fno-rtti", "-shared", PLUGIN,
                        "-isystem", f"/usr/lib/llvm-{version}/include", "-o", plugin], check=True)
    return plugin


def main():
    build = ROOT / sys.argv[1]
    CACHE.mkdir(parents=True, exist_ok=True)
    for stamp in CACHE.iterdir():
        if stamp.stat().st_mtime < time.time() - FORGET_AFTER:
            stamp.unlink()
    entries = json.loads((build / "compile_commands.json").read_text())
    # A file that several programs are made of is looked at once.
    entries = list({entry["file"]: entry for entry in entries
                    if not entry["file"].startswith(str(build))}.values())
    shared = output_of("dpkg-query", "-W", "clang-tidy*", "*-dev")
    plugin = make_plugin(build)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(lambda entry: check(build, plugin, shared, entry), entries))
    print(f"{sum(results)} of {len(results)} files are clean")
    sys.exit(0 if all(results) else 1)


if __name__ == "__main__":
    main()
