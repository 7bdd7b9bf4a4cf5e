"""The functions of Tandekor6R, with values instead of pointers.

    import tandekor6r

    library = tandekor6r.load("build/release")          # folder of the library and of the host library
    with library.connect(1) as phone:                   # COM 1; disconnects at the end
        phone.BootBox_SwitchMobileOn(4, tandekor6r.TANDEKOR_MODE_FTM)
        model = phone.Phone_Model().piPhoneModel
        answer = phone.AT_Get_CSQ()                     # (result, piRssi, piBer, pStatus), by position or by name
        phone.BootBox_SwitchMobileOff(4)

A function of the library is called by its name and takes its [in] and [in,out] arguments; it returns the result and the
values of its out-arguments as a tuple with names, or the result alone if there are none. help(function) shows its text.
Through a Phone the handle is given and the prefix TANDEKOR_ left out, and what fails raises TandekorError.

Texts are strings. An in-buffer is bytes or a list of numbers, and is filled up with zeros to its size; a text out of a
buffer ends at its first NUL, a list has as many entries as the function says there are.
"""
import collections
import ctypes
import inspect
import os
import sys
from pathlib import Path

from . import _declarations
from ._declarations import *  # noqa: F401,F403 (the constants)

__version__ = _declarations.VERSION

TandekorCallback = ctypes.CFUNCTYPE(None, ctypes.c_uint32, ctypes.c_uint32)

_TYPES = {
    "uint8_t": ctypes.c_uint8, "int8_t": ctypes.c_int8, "uint16_t": ctypes.c_uint16, "int16_t": ctypes.c_int16,
    "uint32_t": ctypes.c_uint32, "int32_t": ctypes.c_int32, "double": ctypes.c_double, "char": ctypes.c_char,
    "void": ctypes.c_uint8, "ResourceContext": ctypes.c_uint32, "TandekorCallback": TandekorCallback,
    "TandekorUploadArgument": ctypes.c_size_t, "const char*": ctypes.c_char_p,
}

_Argument = collections.namedtuple("_Argument", "name ctype pointer const direction nullable size row")

_AT_ANSWERS = {1: "the phone answered ERROR", 2: "the phone answered neither OK nor ERROR"}
_OBEX_BITS = {value: name for name, value in vars(_declarations).items()
              if name.startswith("TANDEKOR_OBEX_") and name.endswith(("FAILED", "LARGE", "FORBIDDEN", "FOUND"))}


class TandekorError(Exception):
    """A call failed. `function` is its name, `values` what it returned."""

    def __init__(self, function, values, reason):
        super().__init__(f"{function}: {reason}; it returned {values}")
        self.function, self.values = function, values


class Function:
    """One function of the library, called with values."""

    def __init__(self, entry, name, result, arguments, text):
        self.__name__, self.__doc__ = name, text
        self._arguments = [_Argument(*argument) for argument in arguments]
        self._inputs = [a for a in self._arguments if a.direction != "out"]
        self._outputs = [a for a in self._arguments if a.direction != "in"]
        self._entry = entry
        self._kept = []
        entry.restype = None if result == "void" else _TYPES[result]
        entry.argtypes = [ctypes.c_void_p if a.pointer else _TYPES[a.ctype] for a in self._arguments]
        self._values = collections.namedtuple(name, ["result"] + [a.name for a in self._outputs])
        kind = inspect.Parameter.POSITIONAL_OR_KEYWORD
        self.__signature__ = inspect.Signature([inspect.Parameter(a.name, kind) for a in self._inputs])

    def __call__(self, *args, **kwargs):
        given = self.__signature__.bind(*args, **kwargs).arguments
        storage = {}
        # What the library may go on using lives until the next call is done.
        previous, self._kept = self._kept, []  # noqa: F841
        # Buffers last: their size may be the value of another argument.
        for argument in sorted(self._arguments, key=lambda a: a.size is not None):
            storage[argument.name] = self._stored(argument, given.get(argument.name), storage)
        result = self._entry(*(storage[a.name] for a in self._arguments))
        if not self._outputs:
            return result
        return self._values(result, *(self._delivered(a, storage) for a in self._outputs))

    def _stored(self, argument, value, storage):
        if not argument.pointer:
            return self._scalar(argument, value)
        if value is None and argument.nullable:
            return None
        element = ctypes.c_char * argument.row if argument.row else _TYPES[argument.ctype]
        if argument.size is None and (argument.ctype != "char" or argument.direction != "in"):
            if argument.direction == "in" and isinstance(value, (bytes, bytearray, list, tuple)):
                return (element * (len(value) + 1))(*value)  # bytes up to a NUL
            return (element * 1)() if value is None else (element * 1)(self._character(argument, value))
        data = self._encoded(value)
        if argument.size is None:
            return ctypes.create_string_buffer(data)
        size = self._size(argument, storage)
        if len(data) > size and argument.direction == "in":
            raise ValueError(f"{self.__name__}: {argument.name} has {len(data)} elements and room for {size}")
        buffer = (element * max(size, len(data), 1))()
        if argument.ctype == "char" and not argument.row:
            ctypes.memmove(buffer, data, len(data))
        else:
            for index, entry in enumerate(data):
                buffer[index] = entry
        return buffer

    @staticmethod
    def _encoded(value):
        if value is None:
            return b""
        return value.encode() if isinstance(value, str) else value

    @staticmethod
    def _character(argument, value):
        return value.encode() if argument.ctype == "char" and isinstance(value, str) else value

    def _scalar(self, argument, value):
        if argument.ctype == "TandekorCallback":
            self._kept.append(value if isinstance(value, TandekorCallback) else TandekorCallback(value or 0))
            return self._kept[-1]
        if argument.ctype == "TandekorUploadArgument" and isinstance(value, (str, bytes)):
            self._kept.append(ctypes.create_string_buffer(self._encoded(value)))
            return ctypes.addressof(self._kept[-1])
        if not isinstance(value, int):
            raise TypeError(f"{self.__name__}: {argument.name} is a number")
        size = 8 * ctypes.sizeof(_TYPES[argument.ctype])
        low = -1 << (size - 1) if argument.ctype.startswith("int") else 0
        if not low <= value < low + (1 << size):
            raise OverflowError(f"{self.__name__}: {argument.name} = {value} does not fit its type")
        return value

    def _size(self, argument, storage):
        if isinstance(argument.size, int):
            return argument.size
        stored = storage[argument.size.lstrip("*")]
        return stored if isinstance(stored, int) else stored[0]

    def _delivered(self, argument, storage):
        stored = storage[argument.name]
        if stored is None:
            return None
        if argument.size is None:
            return stored[0].decode("latin-1") if argument.ctype == "char" else stored[0]
        if argument.row or argument.ctype not in ("char", "uint8_t", "void"):
            count = storage["piCount"][0] if "piCount" in storage else len(stored)
            rows = stored[:min(count, len(stored))]
            return [bytes(row).split(b"\0")[0].decode("latin-1") for row in rows] if argument.row else rows
        data = bytes(stored)
        if argument.ctype == "char":
            return data.split(b"\0")[0].decode("latin-1")
        if isinstance(argument.size, str):
            return data[:self._size(argument, storage)]
        return data[:storage["piCount"][0]] if "piCount" in storage else data


class Library:
    """The loaded library. Its functions are attributes by their full names; so are those that steer the simulator."""

    def __init__(self, folder):
        self._functions = {}
        self._callback = None
        self._files = [_open(folder, "QMSL_MSVC6R"), _open(folder, "Tandekor6R")]

    def __getattr__(self, name):
        if name not in _declarations.FUNCTIONS:
            raise AttributeError(name)
        if name not in self._functions:
            entry = getattr(self._files[0 if name.startswith("PHONE_") else 1], name)
            self._functions[name] = Function(entry, name, *_declarations.FUNCTIONS[name])
        return self._functions[name]

    def __dir__(self):
        return sorted([*super().__dir__(), *_declarations.FUNCTIONS])

    def connect(self, com_port, wait_ms=None):
        """Connects to the phone on a COM port. Raises TandekorError if that fails."""
        if wait_ms is None:
            handle = self.TANDEKOR_ConnectServer(com_port)
        else:
            handle = self.TANDEKOR_ConnectServerWithWait(com_port, wait_ms)
        if handle == 0:
            raise TandekorError("TANDEKOR_ConnectServer", 0, f"no phone on COM {com_port}, or another host library")
        return Phone(self, handle)


class Phone:
    """A connected phone: the functions of the library that take a handle, without the prefix TANDEKOR_."""

    def __init__(self, library, handle):
        self.library, self.handle = library, handle

    def __getattr__(self, name):
        function = getattr(self.library, "TANDEKOR_" + name)

        def call(*args, **kwargs):
            if self.handle == 0:
                raise TandekorError(function.__name__, None, "the phone is disconnected")
            values = function(self.handle, *args, **kwargs)
            reason = _failure(values)
            if reason:
                raise TandekorError(function.__name__, values, reason)
            return values

        call.__name__, call.__doc__ = name, function.__doc__
        call.__signature__ = inspect.Signature(list(function.__signature__.parameters.values())[1:])
        return call

    def SetCallback(self, callback):
        """Sets the function of (status, percent) that uploads report to, or None. It is kept alive as long."""
        self.library._callback = TandekorCallback(callback) if callback else TandekorCallback(0)
        self.library.TANDEKOR_SetCallback(self.handle, self.library._callback)

    def close(self):
        """Disconnects the phone. A second call does nothing."""
        if self.handle != 0:
            self.library.TANDEKOR_DisconnectServer(self.handle)
            self.handle = 0

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()


def _failure(values):
    result = values.result if isinstance(values, tuple) else values
    if result == 0:
        error = getattr(values, "piObexError", 0)
        return " and ".join(name for bit, name in _OBEX_BITS.items() if error & bit) or \
            "result 0, the text log says why unless it was the exchange"
    if getattr(values, "pStatus", 0) != 0:
        return _AT_ANSWERS.get(values.pStatus, f"status {values.pStatus}")
    error = getattr(values, "piObexError", 0)
    return " and ".join(name for bit, name in _OBEX_BITS.items() if error & bit)


def _open(folder, name):
    windows = sys.platform == "win32"
    names = [name + ".dll"] if windows else [f"lib{name}.so", f"lib{name}.so.{__version__.split('.')[0]}"]
    if folder is None:
        # Where the system looks; without the files for compilers there is only the name with the number.
        return ctypes.CDLL(names[-1] if name == "Tandekor6R" else names[0])
    found = next((path for path in (Path(folder, n) for n in names) if path.exists()), Path(folder, names[0])).resolve()
    # The folder of the library is searched for the libraries that it needs.
    return ctypes.CDLL(str(found), winmode=0x00000008) if windows else ctypes.CDLL(str(found))


def load(folder=None):
    """Loads the library and its host library from a folder: by default that of the environment variable TANDEKOR6R,
    without it where the system looks for libraries."""
    return Library(folder or os.environ.get("TANDEKOR6R"))
