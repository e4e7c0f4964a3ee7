// Tells what changed between two VIFs, in C#: Compare.exe BEFORE AFTER
using System;
using System.Runtime.InteropServices;
using System.Text;

static class Compare {
  [StructLayout(LayoutKind.Sequential)]
  struct Index { public int Location; public ulong Number; }

  [StructLayout(LayoutKind.Sequential)]
  struct DeclaredField {
    public IntPtr Name, Value, Description, Text, Meaning;
    public ulong Number;
    public UIntPtr Position;
    public uint MeaningIsUncertain, IndexCount;
    [MarshalAs(UnmanagedType.ByValArray, SizeConst = 3)] public Index[] Indexes;
  }

  [StructLayout(LayoutKind.Sequential)]
  struct Difference {
    public UIntPtr Size;
    public IntPtr Name;
    public UIntPtr Group;
    public int Kind;
    public uint PlaceCount;
    [MarshalAs(UnmanagedType.ByValArray, SizeConst = 3)] public Index[] Place;
    public DeclaredField Before, After;
  }

  [DllImport("vif")] static extern int vif_file_make(out IntPtr file, out IntPtr error);
  [DllImport("vif")] static extern int vif_file_load(IntPtr file, byte[] path, IntPtr progress, out IntPtr error);
  [DllImport("vif")]
  static extern int vif_compare(IntPtr before, IntPtr after, IntPtr options, IntPtr progress, out IntPtr d, out IntPtr error);
  [DllImport("vif")] static extern UIntPtr vif_differences_count(IntPtr differences);
  [DllImport("vif")] static extern int vif_differences_get(IntPtr differences, UIntPtr position, ref Difference difference);
  [DllImport("vif")] static extern IntPtr vif_error_message(IntPtr error);

  static string Text(IntPtr utf8) { return Marshal.PtrToStringUTF8(utf8); }

  static void Require(int status, IntPtr error) {
    if (status != 0) throw new Exception(Text(vif_error_message(error)));
  }

  static IntPtr Load(string path) {
    Require(vif_file_make(out IntPtr file, out IntPtr error), error);
    Require(vif_file_load(file, Encoding.UTF8.GetBytes(path + "\0"), IntPtr.Zero, out error), error);
    return file;
  }

  static void Main(string[] args) {  // what it makes is freed when it ends
    Require(vif_compare(Load(args[0]), Load(args[1]), IntPtr.Zero, IntPtr.Zero, out IntPtr all, out IntPtr error), error);
    for (ulong i = 0; i < (ulong)vif_differences_count(all); ++i) {
      var difference = new Difference { Size = (UIntPtr)Marshal.SizeOf<Difference>() };
      Require(vif_differences_get(all, (UIntPtr)i, ref difference), IntPtr.Zero);
      Console.WriteLine($"{Text(difference.Name)}: {Text(difference.Before.Text)} -> {Text(difference.After.Text)}");
    }
  }
}
