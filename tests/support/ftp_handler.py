"""What the FTP servers of the tests share."""
from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.filesystems import AbstractedFS
from pyftpdlib.handlers import FTPHandler


def make_handler(folder, user, password, permissions="elrw", without=(), filesystem=AbstractedFS):
    """A handler of connections that serves a folder to one user and is silent;
    the commands in `without` are unknown to it."""

    class Handler(FTPHandler):
        authorizer = DummyAuthorizer()
        abstracted_fs = filesystem
        auth_failed_timeout = 0
        proto_cmds = {command: facts for command, facts in FTPHandler.proto_cmds.items()
                      if command not in without}

        def log(self, *_, **__):
            pass

        logline = log

    Handler.authorizer.add_user(user, password, str(folder), perm=permissions)
    return Handler
