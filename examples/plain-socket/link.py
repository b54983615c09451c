# SPDX-License-Identifier: MIT
"""A host's end of the link to the tutorial, with Python's standard library alone."""

import os
import socket
import subprocess
import uuid

SOCKET_PATH_BYTES = 107  # what Linux has room for in a socket's address
BUFFER_BYTES = 65536


def socket_folder():
    """The folder for the server's socket: the user's own runtime folder, which
    nobody else can look into, or else that of temporary files."""
    for folder in (os.environ.get("XDG_RUNTIME_DIR"), os.environ.get("TMPDIR"), "/tmp"):
        if folder and os.path.isabs(folder) and os.access(folder, os.W_OK | os.X_OK):
            return folder
    raise OSError("there is no folder for the link's socket")


def encode(*messages):
    """The bytes of one packet; a message is a tuple of its fields."""
    texts = ["\x01".join(str(field) for field in fields) for fields in messages]
    return b"0\x02" + "\x02".join(texts).encode() + b"\0"


class Link:
    """Starts the tutorial, and carries messages to and from it.

    program is the tutorial's executable, a path or a name. OSError says why it
    could not be started.
    """

    def __init__(self, program):
        self.connection = None
        self._received = b""
        connection_id = uuid.uuid4().hex
        folder = socket_folder()
        self._path = os.path.join(folder, "vemo" + connection_id)
        if len(os.fsencode(self._path)) > SOCKET_PATH_BYTES:
            raise OSError(f"the path {self._path} is too long for a socket")
        self.server = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        before = os.umask(0o177)  # whoever connects can act as the learner
        try:
            self.server.bind(self._path)
        finally:
            os.umask(before)
        self.server.listen(1)
        # The tutorial looks for the socket in its folder of temporary files. Points
        # are pixels of the screen here, so that it must not scale them.
        environment = dict(os.environ, TMPDIR=folder, QT_ENABLE_HIGHDPI_SCALING="0",
                           QT_LOGGING_RULES="*.debug=false")
        for name in ("QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"):
            environment.pop(name, None)
        try:
            self.process = subprocess.Popen([program, connection_id], env=environment)
        except OSError:
            self._close_server()
            raise

    def _close_server(self):
        self.server.close()
        os.unlink(self._path)

    def accept(self):
        """Takes the tutorial's connection; there is one only, so nobody else gets in."""
        self.connection, _ = self.server.accept()
        self._close_server()

    def send(self, *messages):
        """Sends the messages in one packet. Without a connection they are dropped."""
        if self.connection:
            try:
                self.connection.sendall(encode(*messages))
            except OSError:
                pass  # receive() tells that the tutorial is gone

    def receive(self):
        """The messages that have arrived, as lists of fields; None when the
        tutorial has left the link."""
        try:
            data = self.connection.recv(BUFFER_BYTES)
        except OSError:
            data = b""
        if not data:
            return None
        *packets, self._received = (self._received + data).split(b"\0")
        return [message.split("\x01") for packet in packets if packet.startswith(b"1\x02")
                for message in packet[2:].decode(errors="replace").split("\x02")]

    def close(self):
        """Sees the tutorial off."""
        self.send(("bye",))
        if self.connection:
            self.connection.close()
            self.connection = None
        else:
            self._close_server()
            self.process.terminate()
        self.process.wait()
