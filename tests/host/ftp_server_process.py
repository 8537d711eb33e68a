"""An FTP server on loopback for ftp_test.cpp.

Usage: ftp_server_process.py FOLDER USER PASSWORD MODE. Prints its port and serves
until it is ended. MODE: "full"; or without some ways to a data connection: "passive"
(only those), "no-extended" (passive ones without EPSV), "no-data" (none at all).
"""
import logging
import pathlib
import sys

from pyftpdlib.servers import FTPServer

sys.dont_write_bytecode = True
sys.path.append(str(pathlib.Path(__file__).parents[1] / "support"))
from ftp_handler import make_handler  # found by the line above

WITHOUT = {
    "full": (),
    "passive": ("PORT", "EPRT"),
    "no-extended": ("PORT", "EPRT", "EPSV"),
    "no-data": ("PORT", "EPRT", "EPSV", "PASV"),
}

folder, user, password, mode = sys.argv[1:]
logging.basicConfig(level=logging.CRITICAL)
server = FTPServer(("127.0.0.1", 0), make_handler(folder, user, password, without=WITHOUT[mode]))
print(server.address[1], flush=True)
server.serve_forever()
