"""An FTP server on loopback for ftp_test.cpp.

Usage: ftp_server.py FOLDER USER PASSWORD. Prints its port and serves until it
is ended.
"""
import logging
import sys

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer

folder, user, password = sys.argv[1:]
logging.basicConfig(level=logging.CRITICAL)
authorizer = DummyAuthorizer()
authorizer.add_user(user, password, folder, perm="elrw")
FTPHandler.authorizer = authorizer
FTPHandler.auth_failed_timeout = 0
server = FTPServer(("127.0.0.1", 0), FTPHandler)
print(server.address[1], flush=True)
server.serve_forever()
