"""The device definition file as flash holds it, which need not be the one that
the card started with: shown and uploaded."""
import shutil
import unittest
import zlib

import card
import expected
import uploads

NAME = "/mnt/work/device_definition.ini"
CAPACITY = 3072000  # bytes of text, and of the image in flash
TEXT = (card.DEFINITIONS + "; the copy in flash\n").encode()
FULL = (TEXT * (CAPACITY // len(TEXT) + 1))[:CAPACITY]


def packed(text):
    return b"zip" + zlib.compress(text, 9)


def too_large(size):
    """What the display and the upload say of a file of such a size."""
    text = (f" err! memfile_length = {size}, FTP_CONTEXT_BUF_SIZE = 3072000, "
            f"FLASH_CONTEXT_FILE_KXCB_NAME = {NAME}").encode()
    return (b"\r\nddPrintContextFile" + text,
            b"\r\nddUploadContextFile->flash_sizeof" + text + b"File size err!\r\n")


def broken(code, size):
    """The same of a packed file of such a size that cannot be unpacked."""
    return (b"ddPrintContextFile->read_compress_context_file failed: "
            b"ret = %d, file_length = %d !\r\n" % (code, size),
            b"ddUploadContextFile->read_compress_context_file failed : "
            b"ret = %d, file_length = %d!\r\n" % (code, size))


# A case, the image in flash, the text in it.
GOOD = (
    ("plain", TEXT, TEXT),
    ("packed", packed(TEXT), TEXT),
    ("packed without compression", b"zip" + zlib.compress(TEXT, 0), TEXT),
    ("empty", b"", b""),
    ("a part of the mark", b"zi", b"zi"),
    ("nearly the mark", b"zig zag", b"zig zag"),
    ("the mark further behind", b" zip", b" zip"),
    ("line ends and bytes of all kinds", b"\r\n\n\r\xff%s\x01\x1b", b"\r\n\n\r\xff%s\x01\x1b"),
    ("plain, as large as may be", FULL, FULL),
    ("packed, as large as may be", packed(FULL), FULL),
)
DAMAGED = packed(TEXT)[:100] + bytes([packed(TEXT)[100] ^ 0xff]) + packed(TEXT)[101:]
# A case, the image in flash, what the display and the upload say of it.
BAD = (
    ("plain, one byte too large", FULL + b"\n", too_large(CAPACITY + 1)),
    ("no compressed text", b"zip of something else", broken(-3, 21)),
    ("the mark only", b"zip", broken(-3, 3)),
    ("a byte changed", DAMAGED, broken(-3, len(DAMAGED))),
    ("the end is missing", packed(TEXT)[:-1], broken(-3, len(packed(TEXT)) - 1)),
    ("packed, one byte too much text", packed(FULL + b"\n"),
     broken(-5, len(packed(FULL + b"\n")))),
)


class StoredFile(uploads.UploadTest):
    def setUp(self):
        super().setUp()
        self.server = self.serve()

    def store(self, image):
        path = self.root / "flash" / NAME[1:]
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(image)

    def check(self, command, text):
        """A command prints this and no more, and succeeds."""
        done = card.run("--root", self.root, "run", command)
        self.check_bytes(done.stdout, text)
        self.assertEqual((done.returncode, done.stderr), (0, b""))

    def check_upload(self, text):
        """The text arrives, whatever was there before."""
        (self.folder / "copy.ini").write_bytes(b"an older copy")
        self.check(uploads.command(), expected.UPLOADED)
        self.check_bytes((self.folder / "copy.ini").read_bytes(), text)

    def test_good_files(self):
        for name, image, text in GOOD:
            with self.subTest(name):
                self.store(image)
                self.check("show context file", b"\r\n" + text + b"\r\n")
                self.check_upload(text)

    def test_bad_files(self):
        for name, image, (display, upload) in BAD:
            with self.subTest(name):
                self.store(image)
                self.check("show context file", display)
                self.check(uploads.command(), expected.WAIT + upload)
        self.assertEqual(self.server.earlier_connections(), 0)

    def test_no_file_has_a_size_below_0(self):
        (self.root / "flash" / NAME[1:]).mkdir(parents=True)
        display, upload = too_large(-1)
        self.check("show context file", display)
        self.check(uploads.command(), expected.WAIT + upload)

    def test_a_zero_byte_ends_the_display_only(self):
        for image in (b"shown\0hidden", packed(b"shown\0hidden")):
            with self.subTest(image):
                self.store(image)
                self.check("show context file", b"\r\nshown\r\n")
                self.check_upload(b"shown\0hidden")

    def test_without_a_copy_in_flash_it_is_the_file_itself(self):
        self.store(TEXT)
        shutil.rmtree(self.root / "flash")
        self.check("show context file", b"\r\n" + card.DEFINITIONS.encode() + b"\r\n")
        self.check_upload(card.DEFINITIONS.encode())

    def test_the_tables_are_not_those_of_the_copy(self):
        self.store(packed(TEXT.replace(b"KT2200V4.1", b"KT2200V9.9")))
        done = card.run("--root", self.root, "run", "show context version | include acSup")
        self.assertEqual(
            done.stdout,
            b" 0. ulSupportedSoftVerLen = 11, acSupportedSoftVer = KT2200V4.0\r\n"
            b" 1. ulSupportedSoftVerLen = 11, acSupportedSoftVer = KT2200V4.1\r\n")

    def test_packed_by_sysctx(self):
        for sample in card.SAMPLES:
            with self.subTest(sample=sample):
                text = card.definition_file(sample)
                image = self.root / "image"
                done = card.run("pack", text, image)
                self.assertEqual((done.returncode, done.stderr), (0, b""))
                self.assertLess(image.stat().st_size, text.stat().st_size // 2)
                self.store(image.read_bytes())
                self.check("show context file", b"\r\n" + text.read_bytes() + b"\r\n")
                self.check_upload(text.read_bytes())


if __name__ == "__main__":
    unittest.main()
