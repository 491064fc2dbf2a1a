"""A Dask cluster on the loopback address, for scripts/test-cluster, and what it takes to run programs."""

import contextlib
import json
import os
import signal
import subprocess
import sys
import time

TOOL = os.path.abspath("build/release/kavrix-resource")
MOST_SECONDS = 120  # to wait for what should come soon


def wait_for(condition, what):
    end = time.monotonic() + MOST_SECONDS
    while not (value := condition()):
        if time.monotonic() > end:
            sys.exit(f"test-cluster: waited in vain for {what}")
        time.sleep(0.02)
    return value


def write(path, content):
    with open(path, "wb") as file:
        file.write(content.encode() if isinstance(content, str) else content)
    return path


def read(path):
    with open(path, "rb") as file:
        return file.read()


def run(*command, text=None, **environment):
    return subprocess.run(command, input=text, capture_output=True, check=False, env={**os.environ, **environment})


class Cluster:
    """A scheduler and workers; all of them end with the `with`."""

    def __init__(self, folder):
        self.folder, self.processes = folder, []

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in self.processes:
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGKILL)  # a tool that it runs is of its group
            process.wait()

    def start(self, sign, program, *arguments):
        """Returns the process after it wrote `sign` to its log."""
        path = f"{self.folder}/process-{len(self.processes)}.log"
        command = ["/usr/bin/python3", "/usr/bin/" + program, *arguments, "--host", "127.0.0.1", "--no-dashboard",
                   "--dashboard-address", "127.0.0.1:0"]
        with open(path, "wb") as log:
            environment = {**os.environ, "ON_WORKER": "yes"}
            process = subprocess.Popen(command, stdout=log, stderr=log, start_new_session=True, env=environment)
        self.processes.append(process)
        wait_for(lambda: sign in read(path), f"{program}: {path}")
        return process

    def start_scheduler(self):
        description = self.folder + "/scheduler.json"
        self.start(b"Scheduler at:", "dask-scheduler", "--port", "0", "--scheduler-file", description)
        wait_for(lambda: os.path.exists(description) and read(description).endswith(b"}"), description)
        self.address = json.loads(read(description))["address"]

    def start_worker(self):
        options = ["--no-nanny", "--nthreads", "1", "--local-directory", self.folder]
        return self.start(b"Registered to:", "dask-worker", self.address, *options)

    def command(self, *arguments):
        program = ["/usr/bin/python3", "examples/cluster/survey_cluster.py", "--progress", "1"]
        return [*program, "--scheduler", self.address, *arguments]

    def survey(self, *arguments, tool=TOOL):
        return run(*self.command("--tool", tool, *arguments))

    def tool_that(self, name, does):
        """A tool that does something else on a worker first, by the shell; $once makes a folder, which succeeds once
        for each name."""
        path = f"{self.folder}/{name}"
        write(path, f'#!/bin/sh\nonce="mkdir {path}."\nif [ -n "$ON_WORKER" ]; then\n{does}\nfi\nexec {TOOL} "$@"\n')
        os.chmod(path, 0o755)
        return path
