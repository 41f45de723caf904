"""A session of the desktop, which programs join by SESSION_MANAGER and which can end."""
import ctypes
import select
import threading
from ctypes import CFUNCTYPE, POINTER, byref, c_char_p, c_int, c_ulong, c_void_p

ICE = ctypes.CDLL("libICE.so.6")
SM = ctypes.CDLL("libSM.so.6")
for call in (ICE.IceAcceptConnection, ICE.IceComposeNetworkIdList, SM.SmsGenerateClientID,
             SM.SmsGetIceConnection):
    call.restype = c_void_p

SAVE_LOCAL, SAVE_BOTH = 1, 2
GONE = (1, 2)  # what `IceProcessMessages` says of a connection that has ended
REGISTER, SAVED, CLOSED = 0, 5, 6  # places of handlers in the table of ten


class Session(threading.Thread):
    """One in a process. All of the protocol is done on this thread."""

    def __init__(self):
        super().__init__(daemon=True)
        self.programs, self.leaving = {}, set()  # the programs by the number of their connection
        self.ending = threading.Event()
        ignore = CFUNCTYPE(None, c_void_p)(lambda *_: None)
        self.handlers = [ignore] * 10
        self.handlers[REGISTER] = CFUNCTYPE(c_int, c_void_p, c_void_p, c_char_p)(self.register)
        self.handlers[SAVED] = CFUNCTYPE(None, c_void_p, c_void_p, c_int)(self.saved)
        self.handlers[CLOSED] = CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_void_p)(self.closed)
        self.welcome = CFUNCTYPE(c_int, c_void_p, c_void_p, POINTER(c_ulong), POINTER(c_void_p),
                                 c_void_p)(self.join)
        self.anybody = CFUNCTYPE(c_int, c_char_p)(lambda host: 1)
        error, count, doors = ctypes.create_string_buffer(256), c_int(), POINTER(c_void_p)()
        ICE.IceSetIOErrorHandler(ignore)
        SM.SmsInitialize(b"tests", b"1", self.welcome, None, self.anybody, 256, error)
        ICE.IceListenForConnections(byref(count), byref(doors), 256, error)
        self.doors = {ICE.IceGetListenConnectionNumber(c_void_p(door)): c_void_p(door)
                      for door in doors[:count.value]}
        for door in self.doors.values():
            ICE.IceSetHostBasedAuthProc(door, self.anybody)
        self.address = ctypes.string_at(ICE.IceComposeNetworkIdList(count, doors)).decode()
        self.start()

    def join(self, program, _, mask, callbacks, __):
        for place, handler in enumerate(self.handlers):
            callbacks[2 * place] = ctypes.cast(handler, c_void_p).value
        mask[0] = (1 << len(self.handlers)) - 1
        return 1

    def register(self, program, *_):
        name = SM.SmsGenerateClientID(c_void_p(program))
        SM.SmsRegisterClientReply(c_void_p(program), c_void_p(name))
        SM.SmsSaveYourself(c_void_p(program), SAVE_LOCAL, 0, 0, 0)
        connection = c_void_p(SM.SmsGetIceConnection(c_void_p(program)))
        self.programs[ICE.IceConnectionNumber(connection)] = program
        return 1

    def saved(self, program, *_):
        (SM.SmsDie if program in self.leaving else SM.SmsSaveComplete)(c_void_p(program))

    def closed(self, program, *_):
        SM.SmsCleanUp(c_void_p(program))

    def run(self):
        connections = {}
        while True:
            for number in select.select([*self.doors, *connections], [], [], 0.05)[0]:
                if number in self.doors:
                    new = ICE.IceAcceptConnection(self.doors[number], byref(c_int()))
                    connections[ICE.IceConnectionNumber(c_void_p(new))] = c_void_p(new)
                elif ICE.IceProcessMessages(connections[number], None, None) in GONE:
                    del connections[number]
                    self.leaving.discard(self.programs.pop(number, None))
            if self.ending.is_set():
                self.ending.clear()
                self.leaving = set(self.programs.values())
                for program in self.leaving:
                    SM.SmsSaveYourself(c_void_p(program), SAVE_BOTH, 1, 0, 0)
