"""Threads."""

import threading
import time
from concurrent.futures import ThreadPoolExecutor

import vendorinfofile as vif
from conftest import EXAMPLES, TEXT


def test_threads_read_one_product():
    for _ in range(20):
        product = vif.loads(TEXT, "a.txt")
        start = threading.Barrier(4)

        def read(_, product=product, start=start):
            start.wait()
            return [(field, field.quantity, field.meaning) for field in product], product.count("Src.*")

        with ThreadPoolExecutor(4) as threads:
            results = list(threads.map(read, range(4)))
        assert all(result == results[0] for result in results)


def test_threads_load_at_once():
    paths = sorted(EXAMPLES.glob("*.[tx]*")) * 8
    expected = [vif.load(path).fields for path in paths]
    with ThreadPoolExecutor(4) as threads:
        assert [product.fields for product in threads.map(vif.load, paths)] == expected


def test_other_threads_run_while_a_file_is_loaded():
    text = b"VID: 1\n" * 300000
    loaded = threading.Event()
    seen = []

    def load():
        begin = time.perf_counter()
        vif.loads(text, "a.txt")
        seen.append((begin, time.perf_counter()))
        loaded.set()

    thread = threading.Thread(target=load)
    thread.start()
    ticks = []
    while not loaded.is_set():
        ticks.append(time.perf_counter())
        time.sleep(0.001)
    thread.join()
    ((begin, end),) = seen
    # Holding the lock, the call would let nobody run between its first and its last moment.
    inside = [tick for tick in ticks if begin + (end - begin) / 4 < tick < end - (end - begin) / 4]
    assert len(inside) >= 3
