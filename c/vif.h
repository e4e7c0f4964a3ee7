/**
 * \file
 *
 * Reads Vendor Info Files (VIFs) of USB Type-C, USB Power Delivery and USB4 products. For C99 and later, for C++, and
 * for every language that can call C.
 *
 *     vif_file* file = NULL;
 *     vif_error* error = NULL;
 *     if (vif_file_make(&file, &error) == VIF_OK &&
 *         vif_file_load(file, "dock.xml", NULL, &error) == VIF_OK) {
 *       ...
 *     }
 *     vif_error_free(error);
 *     vif_file_free(file);
 *
 * What holds for everything:
 *
 * Handles are pointers to types that only the library knows. The function that makes one names the function that frees
 * it; every such function accepts NULL. Libraries built for debugging (VENDORINFOFILE_CHECK_HANDLES) notice a handle,
 * other than an error, that has been freed or is of another kind, unless something new of its kind is at its address: a
 * function that returns a status then returns VIF_ERROR_HANDLE, any other returns what its comment says for NULL, and
 * all say so on standard error. Other builds notice NULL only.
 *
 * Structures begin with their size, which the caller sets to sizeof before each call. Later versions may add members at
 * the end; the library then fills in, or reads, only the members that the caller has.
 *
 * Texts are UTF-8 and end with a NUL, names of files included, on Windows too. Outside Windows, any bytes that name a
 * file will do. In texts that come from the library, bytes of a file that are not UTF-8 appear as U+FFFD; the text of a
 * field ends before a NUL, and in other texts NULs appear as U+FFFD, too. Texts belong to the library; the comment of
 * the structure or the function says how long they last. They are never NULL, except where it says so. The texts that
 * are passed in are borrowed for the call, and none may be NULL except where it says so.
 *
 * Most functions return VIF_OK or say with another status what is wrong. Then nothing has changed, outputs are NULL, 0,
 * VIF_NO_POSITION or as they were, and the output of type vif_error says more, unless the caller passed NULL for it. On
 * success that output is set to NULL. So is every output that is a handle when the call fails. Any function may return
 * VIF_ERROR_ARGUMENT, VIF_ERROR_HANDLE, and, unless it says that it does not allocate, VIF_ERROR_MEMORY. No exception
 * leaves a function. Memory that runs out inside libxml2, or while the first message of a thread is made, may end the
 * process.
 *
 * Any number of threads may call functions at once. Several may read one handle; while one changes it or frees it, no
 * other may use it. A handle may be used on another thread than the one it was made on. On Windows, functions
 * initialise COM for the length of the call where they need it.
 */
#ifndef VIF_H
#define VIF_H

#include <stddef.h>
#include <stdint.h>

/** \def VIF_C_API
 * Marks what the library exports. */
#if defined(_WIN32) && defined(VIF_BUILDING)
#define VIF_C_API __declspec(dllexport)
#elif defined(_WIN32) && !defined(VIF_STATIC)
#define VIF_C_API __declspec(dllimport)
#elif defined(__GNUC__)
#define VIF_C_API __attribute__((visibility("default")))
#else
#define VIF_C_API
#endif

/** The greatest number of an unsigned type. C++98 does not have the limits of <stdint.h>. */
#ifdef __cplusplus
#define VIF_ALL_BITS(type) (static_cast<type>(~static_cast<type>(0)))
#else
#define VIF_ALL_BITS(type) ((type)-1)
#endif

#ifdef __cplusplus
extern "C" {
#endif

/**
 * \name Statuses
 *
 * The numbers never change; later versions may add some.
 * \{
 */

/** How a call ended: VIF_OK, or an error. */
typedef int32_t vif_status;

/** What a call that failed says about it, to be freed with vif_error_free. */
typedef struct vif_error vif_error;

/** The statuses. */
enum {
  VIF_OK = 0,               /**< the call did what it says */
  VIF_ERROR_ARGUMENT = 1,   /**< an argument is NULL or out of range, or the size of a structure is too small */
  VIF_ERROR_HANDLE = 2,     /**< a handle has been freed or is of another kind; see above */
  VIF_ERROR_MEMORY = 3,     /**< memory ran out */
  VIF_ERROR_NO_FILE = 4,    /**< there is no such file */
  VIF_ERROR_FILE = 5,       /**< the file cannot be examined or read, or is not a regular one */
  VIF_ERROR_FORM = 6,       /**< the name of the file ends neither in .txt nor in .xml */
  VIF_ERROR_INVALID = 7,    /**< an XML file is not a valid VIF; the error has the reasons */
  VIF_ERROR_SCHEMA = 8,     /**< a schema is missing or broken, or admits what the library cannot read */
  VIF_ERROR_PATTERN = 9,    /**< a pattern is not a regular expression, or is too complex */
  VIF_ERROR_NOT_FOUND = 10, /**< there is no such field, rule or name */
  VIF_ERROR_AMBIGUOUS = 11, /**< there is more than one such field */
  VIF_ERROR_CANCELLED = 12, /**< the caller's own function for progress asked for it */
  VIF_ERROR_SYSTEM = 13,    /**< a part of the system failed, such as COM */
  VIF_ERROR_INTERNAL = 14   /**< a defect of the library */
};

/** What a status means, such as "memory ran out"; "unknown status" for a number that is none. It lasts as long as the
 * library is loaded. Does not allocate. */
VIF_C_API const char* vif_status_text(vif_status status);

/** The version of the library, such as "0.2.0". It lasts as long as the library is loaded. Does not allocate. */
VIF_C_API const char* vif_version(void);

/** Sets the directory to search first for schemas from now on, in the whole process; NULL or empty for none. Without it
 * they are found where they were installed, or next to the library. */
VIF_C_API vif_status vif_set_schema_directory(const char* path, vif_error** error);

/** \} */

/**
 * \name Errors
 * \{
 */

/** A reason why a file is not valid. Its texts last as long as the error. */
typedef struct vif_reason {
  size_t size;         /**< the caller sets it to the sizeof of the structure */
  uint64_t line;       /**< from 1; 0 when the reason has no place */
  uint64_t column;     /**< the character in the line, from 1; 0 when not known */
  const char* element; /**< the name of the element concerned; empty if none */
  const char* text;    /**< a sentence for people, on one line */
} vif_reason;

/** The status with which the call that made the error failed. VIF_OK for NULL, which stands for no error. Does not
 * allocate. */
VIF_C_API vif_status vif_error_status(const vif_error* error);

/** What went wrong, a sentence for people. Empty for NULL. It lasts as long as the error. Does not allocate. */
VIF_C_API const char* vif_error_message(const vif_error* error);

/** How many reasons there are; 0 unless the status is VIF_ERROR_INVALID, and for NULL. Does not allocate. */
VIF_C_API size_t vif_error_reason_count(const vif_error* error);

/** A reason, in the order in which they were found. Does not allocate. */
VIF_C_API vif_status vif_error_reason(const vif_error* error, size_t position, vif_reason* reason);

/** Frees an error. */
VIF_C_API void vif_error_free(vif_error* error);

/** \} */

/**
 * \name Progress of what may take long
 * \{
 */

/** Called on the thread that called the function, with how much of the work is done: 0 at its start, and then as the
 * comment of the function says. The total is 0 when it is not known.
 *
 * If it returns anything but 0, the work is given up as soon as possible, and the function returns VIF_ERROR_CANCELLED.
 * It may call functions of the library with other handles, but must not throw or jump out of the call. */
typedef int32_t (*vif_progress_function)(void* user, uint64_t done, uint64_t total);

/** How to follow the progress of a call. */
typedef struct vif_progress {
  size_t size;                    /**< the caller sets it to the sizeof of the structure */
  vif_progress_function function; /**< may be NULL */
  void* user;                     /**< passed on to the function; may be NULL */
} vif_progress;

/** \} */

/**
 * \name Files
 * \{
 */

/** The groups of a VIF that a field can belong to. The numbers never change. */
enum {
  VIF_LOCATION_UNSET = 0,           /**< none */
  VIF_LOCATION_VIF = 1,             /**< the VIF as a whole */
  VIF_LOCATION_APP_VERSION = 2,     /**< the application that wrote it */
  VIF_LOCATION_PRODUCT = 3,         /**< products are numbered from 0 */
  VIF_LOCATION_ROUTER = 4,          /**< a USB4 router of the product, numbered from 0 */
  VIF_LOCATION_ROUTER_PCIE = 5,     /**< a PCIe endpoint of a router; it and all others are numbered from 1 */
  VIF_LOCATION_COMPONENT = 6,       /**< across all files that are loaded into a handle */
  VIF_LOCATION_SRC_PDO = 7,         /**< of a component */
  VIF_LOCATION_SNK_PDO = 8,         /**< of a component */
  VIF_LOCATION_SOP_SVID = 9,        /**< of a component */
  VIF_LOCATION_SOP_SVID_MODE = 10,  /**< of an SOP SVID */
  VIF_LOCATION_CABLE_SVID = 11,     /**< of a component */
  VIF_LOCATION_CABLE_SVID_MODE = 12 /**< of a cable SVID */
};

/** The short name of a location, such as "SrcPdo"; "<unset>" for any other number. It lasts as long as the library is
 * loaded. Does not allocate. */
VIF_C_API const char* vif_location_name(int32_t location);

/** The number of a group that has none; in a query, any number. */
#define VIF_ANY_NUMBER VIF_ALL_BITS(uint64_t)

/** A field's number when its value is not a number. */
#define VIF_NO_NUMBER VIF_ALL_BITS(uint64_t)

/** A position that does not exist. */
#define VIF_NO_POSITION VIF_ALL_BITS(size_t)

/** How many groups a field can be in, one inside the other. */
#define VIF_INDEX_COUNT 3

/** A group and its number, such as source PDO 2. */
typedef struct vif_index {
  int32_t location; /**< VIF_LOCATION_... */
  uint64_t number;  /**< the number in that kind of group, or VIF_ANY_NUMBER */
} vif_index;

/** The fields of the files that were loaded into it, in their order. */
typedef struct vif_file vif_file;

/** A field. The texts last until the file is freed or another one is loaded into it. */
typedef struct vif_field {
  size_t size;                        /**< the caller sets it to the sizeof of the structure */
  const char* name;                   /**< in a text VIF the canonical one, without index digits */
  const char* value;                  /**< as declared; empty for a text of an XML file */
  const char* description;            /**< the text of an XML element, the comment of a line */
  uint64_t number;                    /**< what the value stands for: 1 for "YES", 18 for "0x12" and "18 V";
                                       * VIF_NO_NUMBER if it is not a number or the field is not numeric */
  int32_t is_numeric;                 /**< 1 if the value is read as a number, else 0 */
  uint32_t index_count;               /**< how many of the indexes are in use */
  vif_index indexes[VIF_INDEX_COUNT]; /**< the groups that the field is in, outermost first; the rest has the location
                                       * VIF_LOCATION_UNSET and the number VIF_ANY_NUMBER */
} vif_field;

/** Makes an empty file, to be freed with vif_file_free. */
VIF_C_API vif_status vif_file_make(vif_file** file, vif_error** error);

/** Frees a file. */
VIF_C_API void vif_file_free(vif_file* file);

/** Loads a file and appends its fields to those already held. Its extension, in any letter case, decides how it is
 * read:
 * ".txt" as a text VIF, which is one component, ".xml" as an XML VIF. If a text file cannot be read to its end, the
 * fields up to there are loaded; vif_check_file reports that.
 *
 * progress, which may be NULL, is called with numbers of bytes: for a text file between lines, about every 64 kB; for
 * an XML file, whose parsing and validation cannot be interrupted, at its start, when it is valid, and after about
 * every 1,000 fields; and at the end.
 *
 * Returns VIF_ERROR_NO_FILE, VIF_ERROR_FILE, VIF_ERROR_FORM, VIF_ERROR_INVALID, VIF_ERROR_SCHEMA, VIF_ERROR_CANCELLED,
 * VIF_ERROR_SYSTEM. */
VIF_C_API vif_status vif_file_load(vif_file* file, const char* path, const vif_progress* progress, vif_error** error);

/** The same for the content of a file. bytes may be NULL if size is 0, and is borrowed for the call. name stands for
 * the path in messages, and its extension for the form; no file of that name is looked at. Does not return
 * VIF_ERROR_NO_FILE or VIF_ERROR_FILE. */
VIF_C_API vif_status vif_file_load_bytes(vif_file* file, const void* bytes, size_t size, const char* name,
                                         const vif_progress* progress, vif_error** error);

/** The name of the first file loaded; empty if there is none, and for NULL. It lasts until the file is freed or another
 * one is loaded into it. Does not allocate. */
VIF_C_API const char* vif_file_name(const vif_file* file);

/** How many components the files have; 0 for NULL. Does not allocate. */
VIF_C_API uint32_t vif_file_component_count(const vif_file* file);

/** How many fields there are; 0 for NULL. Does not allocate. */
VIF_C_API size_t vif_file_field_count(const vif_file* file);

/** The field at a position, from 0. VIF_ERROR_ARGUMENT if there is none. Does not allocate. */
VIF_C_API vif_status vif_file_field(const vif_file* file, size_t position, vif_field* field);

/** A text of any length. */
typedef struct vif_text vif_text;

/** The text, which ends with a NUL and lasts as long as the handle; empty for NULL. Does not allocate. */
VIF_C_API const char* vif_text_data(const vif_text* text);

/** How many bytes the text has, without the NUL; 0 for NULL. Does not allocate. */
VIF_C_API size_t vif_text_size(const vif_text* text);

/** Frees a text. */
VIF_C_API void vif_text_free(vif_text* text);

/** An exact amount, such as 9000 mV. The unit lasts as long as the library is loaded. */
typedef struct vif_quantity {
  size_t size;      /**< the caller sets it to the sizeof of the structure */
  uint64_t amount;  /**< how many of the unit */
  const char* unit; /**< a symbol, such as "mV"; empty for a plain number, such as a count or an identifier */
} vif_quantity;

/** What the number of the field at a position amounts to: 180 as the voltage of a fixed PDO is 9000 mV. That may depend
 * on the other fields of its PDO and on the edition of the format, unless the files that were loaded name different
 * ones. VIF_ERROR_ARGUMENT if there is no such field, VIF_ERROR_NOT_FOUND if it has no number or its unit is not known.
 * Takes time that grows with the number of fields. */
VIF_C_API vif_status vif_file_quantity(const vif_file* file, size_t position, vif_quantity* quantity,
                                       vif_error** error);

/** What the value of the field at a position stands for, for people, such as "9 V" or "Provider Only"; empty if there
 * is nothing to say. uncertain, which may be NULL, becomes 1 if that must be shown as uncertain, else 0.
 * VIF_ERROR_ARGUMENT if there is no such field. Takes time that grows with the number of fields. Free the text with
 * vif_text_free. */
VIF_C_API vif_status vif_file_meaning(const vif_file* file, size_t position, vif_text** meaning, int32_t* uncertain,
                                      vif_error** error);

/** \} */

/**
 * \name Queries
 *
 * A query is a pattern and up to three places. The pattern is a regular expression (ECMAScript) that must match the
 * whole name of a field in any letter case; NULL or empty matches any name. A place matches the fields in that group,
 * at any depth: {VIF_LOCATION_SRC_PDO, 2} those of source PDO 2 of any component, {VIF_LOCATION_SRC_PDO,
 * VIF_ANY_NUMBER} those of any source PDO. A place with the location VIF_LOCATION_UNSET matches everything. All of them
 * must match. places may be NULL if place_count is 0.
 *
 * So the fields of a component are those at {VIF_LOCATION_COMPONENT, 1}, and those of a mode are those at
 * {VIF_LOCATION_COMPONENT, 1}, {VIF_LOCATION_SOP_SVID, 2}, {VIF_LOCATION_SOP_SVID_MODE, 1}.
 *
 * Every query may return VIF_ERROR_PATTERN, but only if a field is in the places asked for.
 * \{
 */

/** Positions of fields in a file, in rising order. */
typedef struct vif_positions vif_positions;

/** Counts the fields that match. */
VIF_C_API vif_status vif_file_count(const vif_file* file, const char* pattern, const vif_index* places,
                                    size_t place_count, size_t* count, vif_error** error);

/** Finds the fields that match, if any. Free the positions with vif_positions_free. */
VIF_C_API vif_status vif_file_find(const vif_file* file, const char* pattern, const vif_index* places,
                                   size_t place_count, vif_positions** positions, vif_error** error);

/** Finds the only field that matches. VIF_ERROR_NOT_FOUND if there is none, VIF_ERROR_AMBIGUOUS if there are several.
 */
VIF_C_API vif_status vif_file_find_unique(const vif_file* file, const char* pattern, const vif_index* places,
                                          size_t place_count, size_t* position, vif_error** error);

/** The same, but gives VIF_NO_POSITION if there is none. */
VIF_C_API vif_status vif_file_find_single(const vif_file* file, const char* pattern, const vif_index* places,
                                          size_t place_count, size_t* position, vif_error** error);

/** Finds the fields that match in the first component that has any. There may be up to two places besides the
 * component. The component with the highest number is never searched: with one component nothing is found. Free the
 * positions with vif_positions_free. */
VIF_C_API vif_status vif_file_find_first(const vif_file* file, const char* pattern, const vif_index* places,
                                         size_t place_count, vif_positions** positions, vif_error** error);

/** Finds the only field that vif_file_find_first finds. VIF_ERROR_NOT_FOUND if there is none, VIF_ERROR_AMBIGUOUS if
 * there are several. */
VIF_C_API vif_status vif_file_find_first_unique(const vif_file* file, const char* pattern, const vif_index* places,
                                                size_t place_count, size_t* position, vif_error** error);

/** How many positions there are; 0 for NULL. Does not allocate. */
VIF_C_API size_t vif_positions_count(const vif_positions* positions);

/** The positions, which last as long as the handle; NULL if there are none, and for NULL. Does not allocate. */
VIF_C_API const size_t* vif_positions_data(const vif_positions* positions);

/** Frees positions. */
VIF_C_API void vif_positions_free(vif_positions* positions);

/** \} */

/**
 * \name Findings of a check
 * \{
 */

/** How serious a finding is. */
enum {
  VIF_SEVERITY_NOTE = 0,    /**< worth knowing, but often correct as it is */
  VIF_SEVERITY_WARNING = 1, /**< worth a look, but may be intended */
  VIF_SEVERITY_ERROR = 2    /**< something is lost or cannot be intended */
};

/** Which findings to report. Codes are those of rules, in any letter case; others are ignored. */
typedef struct vif_check_options {
  size_t size;             /**< the caller sets it to the sizeof of the structure */
  int32_t notes;           /**< whether to report notes, too: 1 or 0 */
  const char* const* only; /**< unless there are none, only findings with these codes; may be NULL if there are none */
  size_t only_count;       /**< how many codes `only` has */
  const char* const* except; /**< no findings with these codes; may be NULL if there are none */
  size_t except_count;       /**< how many codes `except` has */
} vif_check_options;

/** What a check found, in the order of the file; findings without a place come last. */
typedef struct vif_findings vif_findings;

/** A finding. Its texts last as long as the findings. */
typedef struct vif_finding {
  size_t size;         /**< the caller sets it to the sizeof of the structure */
  const char* code;    /**< of the rule, such as "pdo-above-rating" */
  const char* element; /**< the field in a text file, the element's path in an XML file; empty when there is none */
  const char* message; /**< what is wrong, as a sentence without a full stop, on one line */
  uint64_t line;       /**< from 1; 0 when not known */
  uint64_t column;     /**< from 1; 0 when not known, as in text files */
  size_t position;     /**< of the field that it is about, in a file that only this one was loaded into; VIF_NO_POSITION
                        * when it is not about a field that is loaded */
  int32_t severity;    /**< one of the above */
  int32_t reserved;    /**< 0 */
} vif_finding;

/** Checks whether a file is well-formed and whether what it declares is consistent. A file that is not a valid VIF has
 * findings, too. options may be NULL. progress, which may be NULL, is called with 0 of 1 before and 1 of 1 after the
 * work. Free the findings with vif_findings_free.
 *
 * Returns VIF_ERROR_NO_FILE, VIF_ERROR_FILE, VIF_ERROR_FORM, VIF_ERROR_SCHEMA, VIF_ERROR_CANCELLED, VIF_ERROR_SYSTEM.
 */
VIF_C_API vif_status vif_check_file(const char* path, const vif_check_options* options, const vif_progress* progress,
                                    vif_findings** findings, vif_error** error);

/** The same for the content of a file; see vif_file_load_bytes. */
VIF_C_API vif_status vif_check_bytes(const void* bytes, size_t size, const char* name, const vif_check_options* options,
                                     const vif_progress* progress, vif_findings** findings, vif_error** error);

/** How many findings there are; 0 for NULL. Does not allocate. */
VIF_C_API size_t vif_findings_count(const vif_findings* findings);

/** The finding at a position, from 0. VIF_ERROR_ARGUMENT if there is none. Does not allocate. */
VIF_C_API vif_status vif_findings_get(const vif_findings* findings, size_t position, vif_finding* finding);

/** Frees findings. */
VIF_C_API void vif_findings_free(vif_findings* findings);

/** The line of a file's content that a finding or a reason is about, in two parts: the text before the column and the
 * text from it on, without line breaks. Characters that could control a terminal or reorder text become escapes, tabs
 * become blanks, and what is far from the column is cut off, with an ellipsis in its stead. UTF-16 is decoded if it has
 * a byte order mark; in other encodings, characters beyond ASCII become U+FFFD.
 *
 * line and column are from 1. If the column is 0, `after` has the whole line. Both texts are empty if there is no such
 * line. bytes may be NULL if size is 0. Free both texts with vif_text_free. */
VIF_C_API vif_status vif_source_line(const void* bytes, size_t size, uint64_t line, uint64_t column, vif_text** before,
                                     vif_text** after, vif_error** error);

/** \} */

/**
 * \name Differences
 * \{
 */

/** What happened to a field or a group. */
enum {
  VIF_CHANGED = 0,   /**< both files have the field, with different values */
  VIF_ADDED = 1,     /**< only the second file has it */
  VIF_REMOVED = 2,   /**< only the first file has it */
  VIF_MOVED = 3,     /**< the group changed places with others of its kind, and has another number */
  VIF_RENUMBERED = 4 /**< the group has another number because of others, or of a gap */
};

/** How to compare. */
typedef struct vif_compare_options {
  size_t size;          /**< the caller sets it to the sizeof of the structure */
  int32_t descriptions; /**< whether fields with the same value but other descriptions differ, too: 1 or 0 */
  int32_t reserved;     /**< 0 */
} vif_compare_options;

/** How a second file differs from a first. */
typedef struct vif_differences vif_differences;

/** A field as one of the two files has it, a part of vif_difference that will not grow. If position is VIF_NO_POSITION,
 * that file does not have it, and the texts are empty. */
typedef struct vif_declared_field {
  const char* name;                   /**< perhaps an older spelling */
  const char* value;                  /**< as in vif_field */
  const char* description;            /**< as in vif_field */
  const char* text;                   /**< what it says: its text, or its number in decimal */
  const char* meaning;                /**< what its number stands for, such as "9 V"; empty if not known */
  uint64_t number;                    /**< VIF_NO_NUMBER if it has none */
  size_t position;                    /**< in that file */
  uint32_t meaning_is_uncertain;      /**< 1 if `meaning` must be shown as uncertain, else 0 */
  uint32_t index_count;               /**< how many of the indexes are in use */
  vif_index indexes[VIF_INDEX_COUNT]; /**< as in vif_field */
} vif_declared_field;

/** A field that differs. Its texts last as long as the differences. */
typedef struct vif_difference {
  size_t size;                      /**< the caller sets it to the sizeof of the structure */
  const char* name;                 /**< its canonical name */
  size_t group;                     /**< of the group change that it is a part of; VIF_NO_POSITION if it is of none */
  int32_t kind;                     /**< VIF_CHANGED, VIF_ADDED or VIF_REMOVED */
  uint32_t place_count;             /**< how many of the places are in use */
  vif_index place[VIF_INDEX_COUNT]; /**< its group in the second file; if that was removed, as the first file has it,
                                     * within what corresponds to the groups around it */
  vif_declared_field before;        /**< in the first file */
  vif_declared_field after;         /**< in the second file */
} vif_difference;

/** A whole group that is not the same, or does not have the same number, in both. Its text lasts as long as the
 * differences. */
typedef struct vif_group_change {
  size_t size;                       /**< the caller sets it to the sizeof of the structure */
  const char* summary;               /**< what it is, such as "Fixed, 9 V, 3 A, 27 W"; may be empty */
  size_t field_count;                /**< how many fields it has, with those in its inner groups */
  int32_t kind;                      /**< VIF_ADDED, VIF_REMOVED, VIF_MOVED or VIF_RENUMBERED */
  uint32_t before_count;             /**< how many places of `before` are in use */
  uint32_t after_count;              /**< how many places of `after` are in use */
  vif_index before[VIF_INDEX_COUNT]; /**< its place in the first; if added, where its parent is there */
  vif_index after[VIF_INDEX_COUNT];  /**< its place in the second; if removed, where its parent is there */
} vif_group_change;

/** Compares two files, each loaded from one file, by what they declare. options may be NULL. progress, which may be
 * NULL, is called with 0 of 1 before and 1 of 1 after the work. Free the differences with vif_differences_free. They do
 * not refer to the files. Returns VIF_ERROR_CANCELLED. */
VIF_C_API vif_status vif_compare(const vif_file* before, const vif_file* after, const vif_compare_options* options,
                                 const vif_progress* progress, vif_differences** differences, vif_error** error);

/** How many fields differ; 0 for NULL. Does not allocate. */
VIF_C_API size_t vif_differences_count(const vif_differences* differences);

/** The difference at a position, from 0. VIF_ERROR_ARGUMENT if there is none. Does not allocate. */
VIF_C_API vif_status vif_differences_get(const vif_differences* differences, size_t position,
                                         vif_difference* difference);

/** How many groups were added, removed, moved or renumbered; 0 for NULL. Does not allocate. */
VIF_C_API size_t vif_differences_group_count(const vif_differences* differences);

/** The change of a group at a position, from 0. VIF_ERROR_ARGUMENT if there is none. Does not allocate. */
VIF_C_API vif_status vif_differences_group(const vif_differences* differences, size_t position,
                                           vif_group_change* change);

/** Frees differences. Does nothing for those that belong to comparisons of ports. */
VIF_C_API void vif_differences_free(vif_differences* differences);

/** Comparisons of ports of one file with each other. */
typedef struct vif_ports vif_ports;

/** How one component differs from an earlier one of its kind. */
typedef struct vif_port_comparison {
  size_t size;                        /**< the caller sets it to the sizeof of the structure */
  uint64_t component;                 /**< the number of the one, the second side of the differences */
  uint64_t other;                     /**< the number of the earlier one, their first side */
  const vif_differences* differences; /**< they last as long as the comparisons */
} vif_port_comparison;

/** Compares each component with an earlier one of the same kind, if there is one. options and progress as for
 * vif_compare. Free the comparisons with vif_ports_free. Returns VIF_ERROR_CANCELLED. */
VIF_C_API vif_status vif_compare_ports(const vif_file* file, const vif_compare_options* options,
                                       const vif_progress* progress, vif_ports** ports, vif_error** error);

/** How many comparisons there are; 0 for NULL. Does not allocate. */
VIF_C_API size_t vif_ports_count(const vif_ports* ports);

/** The comparison at a position, from 0. VIF_ERROR_ARGUMENT if there is none. Does not allocate. */
VIF_C_API vif_status vif_ports_get(const vif_ports* ports, size_t position, vif_port_comparison* comparison);

/** Frees comparisons. */
VIF_C_API void vif_ports_free(vif_ports* ports);

/** Compares what checking two files has found: findings that only the first file has are fixed, those that only the
 * second has are added. differences are those of the two files; if NULL, each group corresponds to that of its number.
 * Free both with vif_findings_free. */
VIF_C_API vif_status vif_compare_findings(const vif_findings* before, const vif_findings* after,
                                          const vif_differences* differences, vif_findings** fixed,
                                          vif_findings** added, vif_error** error);

/** \} */

/**
 * \name Documents
 *
 * Texts for other programs, as the command `vif` prints them; docs/command.md describes them. They are UTF-8 and end
 * with a line break. In the JSON of fields, a NUL is an escape. Free each with vif_text_free.
 * \{
 */

/** The fields of the files that were loaded, as JSON: `vif list --format json`. The names are those of the files; they
 * may be NULL if name_count is 0. */
VIF_C_API vif_status vif_file_json(const vif_file* file, const char* const* names, size_t name_count, vif_text** text,
                                   vif_error** error);

/** The same as comma-separated values: `vif list --format csv`. */
VIF_C_API vif_status vif_file_csv(const vif_file* file, vif_text** text, vif_error** error);

/** The findings of one file, of that name, as JSON: `vif check --format json`. */
VIF_C_API vif_status vif_findings_json(const vif_findings* findings, const char* name, vif_text** text,
                                       vif_error** error);

/** The differences between files of these names as JSON: `vif diff --format json`. fixed and added are findings that
 * vif_compare_findings gave; each may be NULL for none. */
VIF_C_API vif_status vif_differences_json(const vif_differences* differences, const char* before, const char* after,
                                          const vif_findings* fixed, const vif_findings* added, vif_text** text,
                                          vif_error** error);

/** \} */

/**
 * \name Reports
 * \{
 */

/** A file to report about. */
typedef struct vif_reported_file {
  size_t size;                  /**< the caller sets it to the sizeof of the structure */
  const vif_file* file;         /**< the file; borrowed for the call */
  const char* name;             /**< what to call it; NULL for the name that it was loaded by */
  const vif_findings* findings; /**< of checking it; NULL for none */
} vif_reported_file;

/** Makes an HTML page that shows what a file declares. It is complete in itself and makes no request. If `after` is not
 * NULL, the page shows how that file differs from the first. progress as for vif_compare. Free the text with
 * vif_text_free. Returns VIF_ERROR_CANCELLED. */
VIF_C_API vif_status vif_report(const vif_reported_file* file, const vif_reported_file* after,
                                const vif_progress* progress, vif_text** page, vif_error** error);

/** \} */

/**
 * \name Explanations
 * \{
 */

/** What is known about a field of the format. */
typedef struct vif_explanation vif_explanation;

/** What is known about the field itself. Texts may be empty where there is nothing to say. They last as long as the
 * explanation. */
typedef struct vif_explained_field {
  size_t size;            /**< the caller sets it to the sizeof of the structure */
  const char* name;       /**< the canonical name */
  const char* asked;      /**< why the name asked for means this field, such as "older field"; empty if it is its own */
  const char* also_means; /**< the other field, where an older field was split in two */
  const char* group;      /**< the short name of the group that it is in */
  const char* declares;   /**< what it declares */
  const char* note;       /**< further remarks */
  const char* type;       /**< "text", "number", "boolean", "enumeration", "group" or "unknown" */
  const char* unit;       /**< "50 mV", or "50 mV (fixed); 100 mV (augmented)" */
  const char* first_edition; /**< the first edition seen with the name */
  const char* last_edition;  /**< the last one */
  const char* confidence;    /**< how certain `declares` is: "high", "medium" or "low" */
  int32_t unit_is_weak;      /**< 1 if part of `unit` is uncertain, else 0 */
  int32_t seen;              /**< 1 if a real file is known that has it, else 0 */
  size_t value_count;        /**< how many values there are for vif_explanation_value */
  size_t spelling_count;     /**< how many names there are for vif_explanation_spelling */
  size_t source_count;       /**< how many texts there are for vif_explanation_source */
} vif_explained_field;

/** A value of the field. Its texts last as long as the explanation. */
typedef struct vif_explained_value {
  size_t size;            /**< the caller sets it to the sizeof of the structure */
  const char* value;      /**< the number in decimal */
  const char* text;       /**< what it stands for */
  const char* confidence; /**< "high", "medium" or "low" */
  int32_t seen;           /**< 1 if a real file is known that has it, else 0 */
  int32_t reserved;       /**< 0 */
} vif_explained_value;

/** Another name of the field. Its texts last as long as the explanation. */
typedef struct vif_explained_spelling {
  size_t size;               /**< the caller sets it to the sizeof of the structure */
  const char* name;          /**< the name; "#" stands for index digits */
  const char* kind;          /**< why it means the field, such as "older field" */
  const char* first_edition; /**< the first edition seen with it */
  const char* last_edition;  /**< the last one */
  const char* why;           /**< how that is known */
  const char* confidence;    /**< "high", "medium" or "low" */
} vif_explained_spelling;

/** Explains the field that a name means: in any letter case, with or without index digits, in any known spelling. Free
 * the explanation with vif_explanation_free. VIF_ERROR_NOT_FOUND if the name means no field; the message then has the
 * nearest name, if there is one. */
VIF_C_API vif_status vif_explain(const char* name, vif_explanation** explanation, vif_error** error);

/** The explanation itself. Does not allocate. */
VIF_C_API vif_status vif_explanation_get(const vif_explanation* explanation, vif_explained_field* field);

/** A value that the field can have, in rising order. VIF_ERROR_ARGUMENT if there is none. Does not allocate. */
VIF_C_API vif_status vif_explanation_value(const vif_explanation* explanation, size_t position,
                                           vif_explained_value* value);

/** Another name of the field. VIF_ERROR_ARGUMENT if there is none. Does not allocate. */
VIF_C_API vif_status vif_explanation_spelling(const vif_explanation* explanation, size_t position,
                                              vif_explained_spelling* spelling);

/** What the explanation was taken from, in words; NULL if there is none at that position. It lasts as long as the
 * explanation. Does not allocate. */
VIF_C_API const char* vif_explanation_source(const vif_explanation* explanation, size_t position);

/** Frees an explanation. */
VIF_C_API void vif_explanation_free(vif_explanation* explanation);

/** A rule of the check. Its texts last as long as the library is loaded. */
typedef struct vif_rule {
  size_t size;            /**< the caller sets it to the sizeof of the structure */
  const char* code;       /**< of its findings */
  const char* what;       /**< what it finds, as a phrase for a list */
  const char* why;        /**< why that is wrong and what to do about it, in sentences */
  const char* confidence; /**< how certain it is that what it finds is wrong: "high", "medium" or "low" */
  int32_t severity;       /**< of its findings */
  uint32_t first_major;   /**< of the first edition of the format that it is applied to: 3 for 3.22; 0 for every file */
  uint32_t first_minor;   /**< of the same edition: 22 for 3.22 */
  uint32_t reserved;      /**< 0 */
} vif_rule;

/** How many rules there are; 0 if memory runs out. */
VIF_C_API size_t vif_rule_count(void);

/** The rule at a position, from 0, in a fixed order. VIF_ERROR_ARGUMENT if there is none. */
VIF_C_API vif_status vif_rule_get(size_t position, vif_rule* rule);

/** The rule with a code, in any letter case. VIF_ERROR_NOT_FOUND if there is none; the message then has the nearest
 * code, if there is one. */
VIF_C_API vif_status vif_find_rule(const char* code, vif_rule* rule, vif_error** error);

/** \} */

#ifdef __cplusplus
}
#endif

#endif
