// Prints the voltages of the fixed source PDOs, in Rust: source_pdos FILE
use std::ffi::{c_void, CStr, CString};
use std::os::raw::{c_char, c_int};
use std::ptr::{null, null_mut};

#[repr(C)]
#[derive(Clone, Copy)]
struct Index {
    location: i32,
    number: u64,
}

#[repr(C)]
struct Field {
    size: usize,
    name: *const c_char,
    value: *const c_char,
    description: *const c_char,
    number: u64,
    is_numeric: i32,
    index_count: u32,
    indexes: [Index; 3],
}

#[link(name = "vif")]
extern "C" {
    fn vif_file_make(file: *mut *mut c_void, error: *mut *mut c_void) -> c_int;
    fn vif_file_load(file: *mut c_void, path: *const c_char, progress: *const c_void, error: *mut *mut c_void) -> c_int;
    fn vif_file_find(file: *mut c_void, pattern: *const c_char, places: *const Index, count: usize,
                     positions: *mut *mut c_void, error: *mut *mut c_void) -> c_int;
    fn vif_positions_count(positions: *mut c_void) -> usize;
    fn vif_positions_data(positions: *mut c_void) -> *const usize;
    fn vif_file_field(file: *mut c_void, position: usize, field: *mut Field) -> c_int;
    fn vif_error_message(error: *mut c_void) -> *const c_char;
}

fn main() {
    let path = CString::new(std::env::args().nth(1).expect("usage: source_pdos FILE")).unwrap();
    let pattern = CString::new("Src_PDO_Voltage").unwrap();
    let (mut file, mut positions, mut error) = (null_mut(), null_mut(), null_mut());
    unsafe { // what it makes is freed when the program ends
        if vif_file_make(&mut file, &mut error) != 0
            || vif_file_load(file, path.as_ptr(), null(), &mut error) != 0
            || vif_file_find(file, pattern.as_ptr(), null(), 0, &mut positions, &mut error) != 0
        {
            eprintln!("source_pdos: {}", CStr::from_ptr(vif_error_message(error)).to_string_lossy());
            std::process::exit(1);
        }
        for i in 0..vif_positions_count(positions) {
            let mut field: Field = std::mem::zeroed();
            field.size = std::mem::size_of::<Field>();
            vif_file_field(file, *vif_positions_data(positions).add(i), &mut field);
            let place = field.indexes;
            let volts = field.number as f64 / 20.0; // of fixed PDOs, in 50 mV
            println!("Component {}, source PDO {}: {} V", place[0].number, place[1].number, volts);
        }
    }
}
