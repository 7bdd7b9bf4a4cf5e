"""A line application in Python, on the two shared libraries: a phone that fails in four ways, and a script that is wrong.

Usage: steer.py HOST_LIBRARY LIBRARY SCRIPT
"""
import ctypes
import os
import subprocess
import sys

host_path, library_path, script = sys.argv[1:4]
if len(sys.argv) == 5:  # the run with the wrong script
    ctypes.CDLL(host_path, ctypes.RTLD_GLOBAL)
    sys.exit(0 if ctypes.CDLL(library_path).TANDEKOR_ConnectServer(5) == 0 else 1)

host = ctypes.CDLL(host_path, ctypes.RTLD_GLOBAL)
library = ctypes.CDLL(library_path)
host.PHONE_LastError.restype = ctypes.c_char_p
handle = library.TANDEKOR_ConnectServer(5)
assert handle != 0
status, charging, charge, value = ctypes.c_uint16(), ctypes.c_uint8(), ctypes.c_uint8(), ctypes.c_uint8()


def log():
    text = ctypes.create_string_buffer(256)
    assert host.PHONE_GetLogText(host.PHONE_CountLogTexts(), text, len(text)) == 1, host.PHONE_LastError()
    return text.value


def run(line):
    assert host.PHONE_Run(line) == 1, host.PHONE_LastError()


run(b"refuse QLIB_DIAG_NV_WRITE_F 1")
assert library.TANDEKOR_ONLINE_TO_FTM(handle) == 0 and b"Failure" in log()

run(b"reset")
run(b"set mode ftm")
run(b"reply QLIB_SendSync 1 - 4B 0B 00 80 0F 00 00 00 0D 00 00 00 99")  # status 0 and a value that is none
assert library.TANDEKOR_FTM_I2C_DATA_ACCESS(handle, 0, 0x51, 1, 0, 1, ctypes.byref(value)) != 0 and value.value == 0x99

run(b"set battery 0")
assert library.TANDEKOR_AT_Get_CBC(handle, ctypes.byref(charging), ctypes.byref(charge), ctypes.byref(status)) != 0
assert charge.value == 0

library.TANDEKOR_AT_2_OBEX(handle, ctypes.byref(status))
run(b"obex-response 0x83 0xD3")
library.TANDEKOR_OBEX_GetFile(handle, b"Pictures\\Holiday\\", b"beach.jpg", b"/nowhere/", ctypes.byref(status))
assert status.value == 32, status.value
assert host.PHONE_Run(b"set batery 0") == 0 and b"batery" in host.PHONE_LastError()

with open(script, "w", encoding="ascii") as file:
    file.write("# a phone that is slow\nset latency 20\nset latency soon\n")
wrong = subprocess.run([sys.executable, *sys.argv, "wrong"], env={**os.environ, "TANDEKOR_PHONE": script},
                       stderr=subprocess.PIPE, check=True)
assert f"{script}:3: latency is 0 to 4294967295".encode() in wrong.stderr, wrong.stderr
