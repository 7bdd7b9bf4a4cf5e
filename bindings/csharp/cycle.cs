// A phone from connect to disconnect, through the declarations alone. Exit status 0 if every call did what it should.
using System;
using System.Text;

public static class Cycle
{
    private static void Expect(bool good, string what)
    {
        if (good)
            return;
        Console.Error.WriteLine("failed: " + what);
        Environment.Exit(1);
    }

    public static void Main()
    {
        byte[] version = new byte[Tandekor6R.TANDEKOR_EXTENSION_VERSION_SIZE];
        Tandekor6R.TANDEKOR_GetExtensionVersion(version);
        Expect(Encoding.ASCII.GetString(version).TrimEnd('\0') == "TANDEKOR V02.4.15,QPHONEMS", "version");

        uint phone = Tandekor6R.TANDEKOR_ConnectServer(3);
        Expect(phone != 0, "connect");
        Expect(Tandekor6R.TANDEKOR_ONLINE_TO_FTM(phone) != 0, "factory mode");
        uint variant = 0, chip = 0, model = 0;
        Expect(Tandekor6R.TANDEKOR_Phone_Model(phone, ref variant, ref chip, ref model) != 0, "model");
        Expect(model == Tandekor6R.TANDEKOR_MODEL_KOLT_52, "model " + model);
        Expect(Tandekor6R.TANDEKOR_FTM_TO_ONLINE(phone) != 0, "online mode");

        ushort status = Tandekor6R.TANDEKOR_AT_OTHER;
        byte rssi = 0, ber = 0;
        Expect(Tandekor6R.TANDEKOR_AT_Get_CSQ(phone, ref rssi, ref ber, ref status) != 0, "AT command");
        Expect(status == Tandekor6R.TANDEKOR_AT_OK && rssi > 0, "signal quality");
        Tandekor6R.TANDEKOR_DisconnectServer(phone);
        Expect(Tandekor6R.TANDEKOR_AT_CHUP(phone, ref status) == 0, "the handle is forgotten");
    }
}
