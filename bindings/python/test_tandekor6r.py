"""The package against the two shared libraries, the host library being the simulator. TANDEKOR6R names their folder."""
import tempfile
import unittest
from pathlib import Path

import tandekor6r


class PhoneTest(unittest.TestCase):
    def setUp(self):
        self.library = tandekor6r.load()

    def test_modes_values_and_end_of_a_connection(self):
        with self.library.connect(3) as phone:
            phone.ONLINE_TO_FTM()
            model = phone.Phone_Model()
            self.assertEqual(model.piPhoneModel, tandekor6r.TANDEKOR_MODEL_KOLT_52)
            self.assertEqual(phone.FTM_I2C_DATA_ACCESS.__signature__.parameters.keys(),
                             dict.fromkeys(["iI2C_AccessType", "iI2C_SlaveAddr", "iI2C_RegAddrLen", "iI2C_RegAddr",
                                            "iI2C_DataLen", "piI2C_Data"]).keys())
            phone.FTM_MMC_FILE_ACCESS(tandekor6r.TANDEKOR_ACCESS_WRITE, 4, "\\a.bin", b"\x01\x00\x02\x03")
            read = phone.FTM_MMC_FILE_ACCESS(tandekor6r.TANDEKOR_ACCESS_READ, 4, "\\a.bin", None)
            self.assertEqual(read.pData, b"\x01\x00\x02\x03")
            phone.FTM_TO_ONLINE()
        with self.assertRaisesRegex(tandekor6r.TandekorError, "disconnected"):
            phone.AT_CHUP()
        self.assertEqual(self.library.TANDEKOR_AT_CHUP(3), (0, 0))  # the handle is forgotten

    def test_lists_and_texts_of_at_commands(self):
        with self.library.connect(3) as phone:
            messages = phone.AT_CMGL(tandekor6r.TANDEKOR_AT_MESSAGE_ALL)
            self.assertEqual(messages.aiIndex, [1, 12])
            self.assertEqual([len(row) % 2 for row in messages.asData], [0, 0])
            self.assertTrue(phone.AT_Get_CGMI().sText.endswith("\r\n\r\n"))
            with self.assertRaisesRegex(tandekor6r.TandekorError, "AT_Set_CPIN: the phone answered"):
                phone.AT_Set_CPIN("99999", "-")
            with self.assertRaises(OverflowError):
                phone.AT_Set_CMUT(256)
            with self.assertRaises(TypeError):
                phone.AT_Set_CMUT()

    def test_files_of_the_phone(self):
        with self.library.connect(3) as phone, tempfile.TemporaryDirectory() as folder:
            phone.AT_2_OBEX()
            listing = phone.OBEX_ListDir("Pictures\\Holiday\\", 4096).pListing
            self.assertIn(b"beach.jpg", listing)
            phone.OBEX_GetFile("Pictures\\Holiday\\", "beach.jpg", folder + "/")
            self.assertGreater(Path(folder, "beach.jpg").stat().st_size, 0)
            with self.assertRaisesRegex(tandekor6r.TandekorError, "LISTING_TOO_LARGE"):
                phone.OBEX_ListDir("", 10)
            phone.OBEX_2_AT()

    def test_an_upload_reports_its_progress(self):
        reports = []
        with self.library.connect(3) as phone, tempfile.NamedTemporaryFile() as image:
            image.write(bytes(5000))
            image.flush()
            self.library.TANDEKOR_SetLibraryMode(tandekor6r.TANDEKOR_LIBRARY_QPST)
            try:
                phone.SetCallback(lambda status, percent: reports.append(percent))
                phone.UploadCEFS_File(image.name, 0)
            finally:
                phone.SetCallback(None)
                self.library.TANDEKOR_SetLibraryMode(tandekor6r.TANDEKOR_LIBRARY_QPHONEMS)
        self.assertEqual(reports[-1], 100)
        self.assertGreater(len(reports), 2)


if __name__ == "__main__":
    unittest.main()
