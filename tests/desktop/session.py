"""A session manager for the tests: it takes the programs that name it in SESSION_MANAGER into the session, and ends
the session as the desktop does when its user logs out (X Session Management Protocol, version 1.0)."""

import ctypes
import select
import threading

ICE = ctypes.CDLL("libICE.so.6")
SM = ctypes.CDLL("libSM.so.6")

POINTER = ctypes.c_void_p
NEW_CLIENT = ctypes.CFUNCTYPE(ctypes.c_int, POINTER, POINTER, ctypes.POINTER(ctypes.c_ulong), ctypes.POINTER(POINTER),
                              ctypes.POINTER(ctypes.c_char_p))
CALLBACK = ctypes.CFUNCTYPE(ctypes.c_int, POINTER, POINTER, POINTER)
HOST_ALLOWED = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_char_p)
IO_ERROR = ctypes.CFUNCTYPE(None, POINTER)

# The callbacks of a client in their order, and all of them as a mask.
REGISTER_CLIENT, SAVE_YOURSELF_DONE, CALLBACKS = 0, 5, 10
ALL_CALLBACKS = (1 << CALLBACKS) - 1
SAVE_LOCAL, SAVE_BOTH = 1, 2
NO_INTERACTION = 0
PENDING = 0

for function, result in ((ICE.IceAcceptConnection, POINTER), (ICE.IceComposeNetworkIdList, ctypes.c_char_p)):
    function.restype = result


class Session:
    """The session; its address is the value of SESSION_MANAGER."""

    def __init__(self):
        self.clients = []
        self.saved = 0  # clients that have told that they are done
        self.connections = []
        self.ended = threading.Event()
        self._callbacks = [CALLBACK(lambda *_: 1) for _ in range(CALLBACKS)]
        self._callbacks[REGISTER_CLIENT] = CALLBACK(self._register)
        self._callbacks[SAVE_YOURSELF_DONE] = CALLBACK(self._save_done)
        self._kept = [NEW_CLIENT(self._new_client), HOST_ALLOWED(lambda _: 1), IO_ERROR(lambda _: None)]
        self._listen()
        self._thread = threading.Thread(target=self._serve, daemon=True)
        self._thread.start()

    def _listen(self):
        new_client, host_allowed, io_error = self._kept
        error = ctypes.create_string_buffer(256)
        ICE.IceSetIOErrorHandler(io_error)
        assert SM.SmsInitialize(b"tests", b"1", new_client, None, host_allowed, 256, error), error.value
        count = ctypes.c_int()
        sockets = ctypes.POINTER(POINTER)()
        assert ICE.IceListenForConnections(ctypes.byref(count), ctypes.byref(sockets), 256, error), error.value
        self.sockets = [POINTER(sockets[i]) for i in range(count.value)]
        for socket in self.sockets:
            ICE.IceSetHostBasedAuthProc(socket, host_allowed)
        self.address = ICE.IceComposeNetworkIdList(count, sockets).decode()

    def _new_client(self, _connection, _data, mask, callbacks, _reason):
        mask[0] = ALL_CALLBACKS
        for i, callback in enumerate(self._callbacks):
            callbacks[2 * i] = ctypes.cast(callback, POINTER).value
            callbacks[2 * i + 1] = None
        return 1

    def _register(self, connection, _data, _previous):
        SM.SmsRegisterClientReply(POINTER(connection), b"client")
        SM.SmsSaveYourself(POINTER(connection), SAVE_LOCAL, 0, NO_INTERACTION, 0)
        self.clients.append(connection)
        return 1

    def _save_done(self, connection, _data, _success):
        self.saved += 1
        if self.ended.is_set():
            SM.SmsDie(POINTER(connection))
        else:
            SM.SmsSaveComplete(POINTER(connection))
        return 1

    def _accept(self, socket):
        status = ctypes.c_int()
        connection = POINTER(ICE.IceAcceptConnection(socket, ctypes.byref(status)))
        while ICE.IceConnectionStatus(connection) == PENDING:
            ICE.IceProcessMessages(connection, None, None)
        self.connections.append(connection)

    def _serve(self):
        asked = False
        while True:
            if self.ended.is_set() and not asked:
                asked = True
                for client in self.clients:
                    SM.SmsSaveYourself(POINTER(client), SAVE_BOTH, 1, NO_INTERACTION, 0)
            number = {ICE.IceGetListenConnectionNumber(socket): socket for socket in self.sockets}
            open_ones = {ICE.IceConnectionNumber(connection): connection for connection in self.connections}
            for ready in select.select([*number, *open_ones], [], [], 0.05)[0]:
                if ready in number:
                    self._accept(number[ready])
                elif ICE.IceProcessMessages(open_ones[ready], None, None) != 0:
                    self.connections.remove(open_ones[ready])

    def end(self):
        """Logs out: every client is to save what it has and to end."""
        self.ended.set()
