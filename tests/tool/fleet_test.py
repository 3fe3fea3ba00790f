"""Has Prometheus scrape two served devices, and asks it for a sum over both.

    fleet_test.py TOOL
"""
import json
import os
import re
import socket
import subprocess
import sys
import tempfile
import time
import urllib.parse
import urllib.request

SECONDS = 60  # that Prometheus has to come up and scrape
CONFIGURATION = """
global: {scrape_interval: 250ms, scrape_timeout: 250ms}
scrape_configs:
- {job_name: devices, static_configs: [{targets: [%s]}]}
"""
SCRIPT = """add l2DmacClassify ingressPort=1 dmac=02:00:00:00:00:01 priority=1 action=setMcast
traffic l2DmacClassify ingressPort=1 dmac=02:00:00:00:00:01 packets=%d
"""


def serve(tool, name):
    server = subprocess.Popen([tool, "serve", "--socket", name, "--http", ":0"],
                              stdout=subprocess.PIPE, text=True)
    address = re.search(r"http://(.*)/", server.stdout.readline())[1]
    return server, address


def ask(address, query):
    url = f"http://{address}/api/v1/query?" + urllib.parse.urlencode({"query": query})
    try:
        with urllib.request.urlopen(url, timeout=5) as answer:
            return [float(one["value"][1]) for one in json.load(answer)["data"]["result"]]
    except OSError:
        return []  # not up yet


def wait_for(address, query, wanted):
    deadline = time.monotonic() + SECONDS
    while (got := ask(address, query)) != wanted:
        if time.monotonic() > deadline:
            sys.exit(f"{query}: wanted {wanted}, got {got}")
        time.sleep(0.1)


def main():
    tool = os.path.abspath(sys.argv[1])
    with tempfile.TemporaryDirectory(prefix="fleet.") as folder:
        os.chdir(folder)
        servers, addresses = zip(*[serve(tool, name) for name in ("a", "b")])
        for name, packets in (("a", 5), ("b", 37)):
            subprocess.run([tool, "--socket", name, "run", "-"], input=SCRIPT % packets, text=True,
                           stdout=subprocess.DEVNULL, check=True)
        with socket.create_server(("127.0.0.1", 0)) as free:
            prometheus = "127.0.0.1:%d" % free.getsockname()[1]
        with open("p.yml", "w") as file:
            file.write(CONFIGURATION % ", ".join(f"'{address}'" for address in addresses))
        with open("log", "w") as log:
            monitor = subprocess.Popen(["prometheus", "--config.file=p.yml", "--storage.tsdb.path=d",
                                        f"--web.listen-address={prometheus}"], stderr=log)
        try:
            wait_for(prometheus, "sum(tesselctl_counted_packets_total)", [42])
            wait_for(prometheus, "count(tesselctl_table_entries{table='l2DmacClassify'} == 1)", [2])
            wait_for(prometheus, "sum(up)", [2])
        finally:
            for process in (*servers, monitor):  # servers end while they are scraped
                process.terminate()
                process.wait(5)


main()
