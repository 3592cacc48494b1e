#!/usr/bin/env python3
"""Runs clang-tidy over every file of a build's compile commands, in parallel.

A file is skipped if it was clean before and neither it, nor a header of the project, nor the
configuration has changed since.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent


def shared_digest():
    """What every file depends on: the configuration and all headers."""
    digest = hashlib.sha256()
    tracked = subprocess.run(
        ["git", "ls-files", "-co", "--exclude-standard", "*.h", ".clang-tidy", "**/.clang-tidy"],
        cwd=ROOT, capture_output=True, text=True, check=True).stdout.split()
    for name in sorted(set(tracked)):
        digest.update(name.encode())
        digest.update((ROOT / name).read_bytes())
    return digest.hexdigest()


def check(build, cache, shared, entry):
    source = pathlib.Path(entry["file"])
    key = hashlib.sha256(
        (shared + entry["command"]).encode() + source.read_bytes()).hexdigest()
    stamp = cache / key
    if stamp.exists():
        return True
    run = subprocess.run(["clang-tidy", "--quiet", "-p", build, source],
                         capture_output=True, text=True)
    # With settings that it can't read, clang-tidy checks nothing and reports success.
    clean = run.returncode == 0 and "Error parsing" not in run.stderr
    if clean:
        stamp.touch()
    else:
        print(f"{source.relative_to(ROOT)}\n{run.stdout}{run.stderr}", flush=True)
    return clean


def main():
    build = ROOT / sys.argv[1]
    cache = build / "clean"
    cache.mkdir(exist_ok=True)
    entries = json.loads((build / "compile_commands.json").read_text())
    entries = [entry for entry in entries if not entry["file"].startswith(str(build))]
    shared = shared_digest()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(lambda entry: check(build, cache, shared, entry), entries))
    print(f"{sum(results)} of {len(results)} files are clean")
    sys.exit(0 if all(results) else 1)


if __name__ == "__main__":
    main()
