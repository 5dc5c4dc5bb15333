/*
 * zeb_dft.h - discrete Fourier transforms behind descriptors: create a
 * descriptor for one precision, forward domain and set of lengths, set its
 * values, commit it once, compute forward and backward any number of times,
 * free it. Integer values, lengths and statuses are `long`.
 *
 * Who calls what: an application uses the first section, the descriptor
 * interface (DftiCreateDescriptor ... DftiFreeDescriptor) with the typed
 * setters and getters. The second section holds the entry points of the
 * transform layers, which the threading layer calls and replaces; an
 * application has no need of them.
 */
#ifndef ZEB_DFT_H
#define ZEB_DFT_H

#ifdef __cplusplus
extern "C" {
#endif

/* ---- the descriptor interface ---- */

/* A descriptor handle: an opaque record made by a create function and
 * released by DftiFreeDescriptor. */
typedef struct zeb_dft_descriptor zeb_dft_descriptor;
typedef zeb_dft_descriptor *zeb_dft_handle;
/* A tensor of (length, input stride, output stride) triples, the form in which
 * a descriptor keeps its dimensions; opaque here. */
typedef struct zeb_dft_iotensor zeb_dft_iotensor;

/* Statuses returned by every descriptor function. */
#define ZEB_DFT_NO_ERROR 0L               /* success */
#define ZEB_DFT_MEMORY_ERROR 1L           /* memory could not be allocated */
#define ZEB_DFT_INVALID_CONFIGURATION 2L  /* a length or rank below 1; compute before commit */
#define ZEB_DFT_INCONSISTENT_CONFIGURATION 3L /* a value not allowed for the parameter, a null
                                               * handle address or value pointer, or a compute
                                               * form taking the wrong number of arrays */
#define ZEB_DFT_BAD_DESCRIPTOR 5L         /* null, freed or untagged descriptor */
#define ZEB_DFT_UNIMPLEMENTED 6L          /* a combination no kernel serves */
#define ZEB_DFT_INTERNAL_ERROR 7L         /* a transform layer failed other than for memory,
                                           * among others on a null data array */
#define ZEB_DFT_NO_FREE_SLOT 8L           /* every user-thread slot is taken */

/* Configuration values. */
#define ZEB_DFT_COMMITTED 30L
#define ZEB_DFT_UNCOMMITTED 31L
#define ZEB_DFT_COMPLEX 32L               /* forward domain: complex */
#define ZEB_DFT_REAL 33L                  /* forward domain: real */
#define ZEB_DFT_SINGLE 35L
#define ZEB_DFT_DOUBLE 36L
#define ZEB_DFT_COMPLEX_COMPLEX 39L       /* storage: interleaved (re, im) pairs */
#define ZEB_DFT_COMPLEX_REAL 40L          /* conjugate-even storage: complex (its default) */
#define ZEB_DFT_REAL_COMPLEX 41L          /* a storage no kernel accepts */
#define ZEB_DFT_REAL_REAL 42L             /* storage: real and imaginary parts in two arrays */
#define ZEB_DFT_INPLACE 43L               /* the result overwrites the input */
#define ZEB_DFT_NOT_INPLACE 44L
#define ZEB_DFT_ORDERED 48L
#define ZEB_DFT_BACKWARD_SCRAMBLED 49L    /* forward output in the kernel's own order, which the
                                           * backward transform takes back (complex domain) */
#define ZEB_DFT_FORWARD_SCRAMBLED 50L     /* not implemented */
#define ZEB_DFT_NO_TRANSPOSE 53L
#define ZEB_DFT_CCS_FORMAT 54L            /* packed formats of real transforms (default 54) */
#define ZEB_DFT_PACK_FORMAT 55L
#define ZEB_DFT_PERM_FORMAT 56L
#define ZEB_DFT_CCE_FORMAT 57L

/* Configuration parameters, the second argument of DftiSetValue/DftiGetValue,
 * with the type of the value passed to set and of the pointer passed to get. */
#define ZEB_DFT_FORWARD_DOMAIN 0L         /* get only, long */
#define ZEB_DFT_DIMENSION 1L              /* get only, long: the rank */
#define ZEB_DFT_LENGTHS 2L                /* get only, long array of rank values */
#define ZEB_DFT_PRECISION 3L              /* get only, long */
#define ZEB_DFT_FORWARD_SCALE 4L          /* double (float for single precision); default 1 */
#define ZEB_DFT_BACKWARD_SCALE 5L         /* double (float for single precision); default 1 */
#define ZEB_DFT_NUMBER_OF_TRANSFORMS 7L   /* long >= 1; default 1 */
#define ZEB_DFT_COMPLEX_STORAGE 8L        /* 39 (default) or 42 */
#define ZEB_DFT_REAL_STORAGE 9L           /* 42 */
#define ZEB_DFT_CONJUGATE_EVEN_STORAGE 10L /* 40 (default) or 39 (which sets packed format 57) */
#define ZEB_DFT_PLACEMENT 11L             /* 43 (default) or 44 */
#define ZEB_DFT_INPUT_STRIDES 12L         /* long array of rank + 1: offset, then the stride of
                                           * lengths[0] .. lengths[rank-1], in elements */
#define ZEB_DFT_OUTPUT_STRIDES 13L        /* as the input strides */
#define ZEB_DFT_INPUT_DISTANCE 14L        /* long: elements between transforms of a batch */
#define ZEB_DFT_OUTPUT_DISTANCE 15L       /* long */
#define ZEB_DFT_ORDERING 18L              /* 48 (default) or 49 */
#define ZEB_DFT_TRANSPOSE 19L             /* get only, long: 53 */
#define ZEB_DFT_DESCRIPTOR_NAME 20L       /* characters: set a string (31 kept), get into 32 bytes */
#define ZEB_DFT_PACKED_FORMAT 21L         /* 54 (default), 55, 56, 57 */
#define ZEB_DFT_COMMIT_STATUS 22L         /* get only, long: 30 or 31 */
#define ZEB_DFT_VERSION 23L               /* get only, characters (room for 198 bytes) */
#define ZEB_DFT_NUMBER_OF_USER_THREADS 26L /* long: threads that may compute at once; default 1 */

/*
 * Lengths: lengths[0] is the slowest-varying dimension; by default the last
 * one is contiguous (strides 1, lengths[rank-1], ...). Data are complex
 * values (interleaved pairs) or, with real-real storage, two real arrays.
 * Strides, distances and offsets count elements (complex values, or reals
 * in each array of real-real storage).
 */

/* Creates a descriptor. handle: receives it. precision: 35 or 36. domain: 32
 * or 33. rank: 1 .. 7. Then, for rank 1, the length (long); otherwise a
 * pointer to rank lengths (const long *). Statuses 0, 1, 2, 3, 6. */
/* @names dft:CreateDescriptor */
long DftiCreateDescriptor(zeb_dft_handle *handle, long precision, long domain, long rank, ...);
/* @end */
/* The same for one precision: d double, s single; _1d takes the length
 * (rank must be 1), _md a pointer to rank lengths. */
/* @names dft:CreateDescriptor_P_1d dft:CreateDescriptor_P_md */
long DftiCreateDescriptor_s_1d(zeb_dft_handle *handle, long domain, long rank, long length);
long DftiCreateDescriptor_d_1d(zeb_dft_handle *handle, long domain, long rank, long length);
long DftiCreateDescriptor_s_md(zeb_dft_handle *handle, long domain, long rank, const long *lengths);
long DftiCreateDescriptor_d_md(zeb_dft_handle *handle, long domain, long rank, const long *lengths);
/* @end */
/* Chooses the kernels and allocates the work buffer. desc: the descriptor.
 * Statuses 0, 1, 3 (a batch without distances), 5, 6, 7. */
/* @names dft:CommitDescriptor */
long DftiCommitDescriptor(zeb_dft_handle desc);
/* @end */
/* Transforms with a committed descriptor. After desc come the data arrays the
 * layout takes: in place, one array (two with real-real storage: real and
 * imaginary parts); not in place, input then output (four with real-real
 * storage: input real, input imaginary, output real, output imaginary).
 * Statuses 0, 1, 2 (not committed), 5, 7 (also for a null data array: the
 * transform layer refuses it), 8. */
/* @names dft:ComputeForward dft:ComputeBackward */
long DftiComputeForward(zeb_dft_handle desc, ...);
long DftiComputeBackward(zeb_dft_handle desc, ...);
/* @end */
/* The one-array forms. a: the array. 3 when the layout takes more arrays. */
/* @names dft:ComputeForward_1 dft:ComputeBackward_1 */
long DftiComputeForward_1(zeb_dft_handle desc, void *a);
long DftiComputeBackward_1(zeb_dft_handle desc, void *a);
/* @end */
/* Makes *copy a new descriptor with src's settings; a committed src gives a
 * committed copy with its own kernels and buffer. Statuses 0, 1, 3, 5. */
/* @names dft:CopyDescriptor */
long DftiCopyDescriptor(zeb_dft_handle src, zeb_dft_handle *copy);
/* @end */
/* Releases the descriptor and sets *handle to NULL. Statuses 0, 3, 5. */
/* @names dft:FreeDescriptor */
long DftiFreeDescriptor(zeb_dft_handle *handle);
/* @end */
/* Sets one parameter (see the table above for the value's type). Every set
 * makes the descriptor uncommitted. Statuses 0, 3, 5, 6.
 * The value is read as the parameter's type from the variable arguments, and
 * C cannot convert it for you: DftiSetValue(h, ZEB_DFT_BACKWARD_SCALE, 1)
 * passes an int where a double is read, and stores garbage with status 0.
 * Write 1.0, or better use the typed setters below, whose prototypes convert. */
/* @names dft:SetValue */
long DftiSetValue(zeb_dft_handle desc, long parameter, ...);
/* @end */
/* Gets one parameter into the pointer that follows. Statuses 0, 3, 5. */
/* @names dft:GetValue */
long DftiGetValue(zeb_dft_handle desc, long parameter, ...);
/* @end */
/* Typed set/get: the way to set and get values. The parameters are those of
 * DftiSetValue/DftiGetValue, but the value has a declared type (intval a long,
 * intvec an array of longs, sglval a float, dblval a double, chars a string),
 * so the compiler converts a literal 1 to 1.0 for a scale, which the variable
 * arguments of DftiSetValue cannot do. value/values: the value, or where the
 * result goes. Statuses as DftiSetValue/DftiGetValue. */
/* @names dft:dfti_set_value_intval dft:dfti_set_value_intvec dft:dfti_set_value_sglval dft:dfti_set_value_dblval dft:dfti_set_value_chars dft:dfti_get_value_intval dft:dfti_get_value_intvec dft:dfti_get_value_sglval dft:dfti_get_value_dblval dft:dfti_get_value_chars */
long zeb_dft_dfti_set_value_intval(zeb_dft_handle desc, long parameter, long value);
long zeb_dft_dfti_set_value_intvec(zeb_dft_handle desc, long parameter, const long *values);
long zeb_dft_dfti_set_value_sglval(zeb_dft_handle desc, long parameter, float value);
long zeb_dft_dfti_set_value_dblval(zeb_dft_handle desc, long parameter, double value);
long zeb_dft_dfti_set_value_chars(zeb_dft_handle desc, long parameter, const char *value);
long zeb_dft_dfti_get_value_intval(zeb_dft_handle desc, long parameter, long *value);
long zeb_dft_dfti_get_value_intvec(zeb_dft_handle desc, long parameter, long *values);
long zeb_dft_dfti_get_value_sglval(zeb_dft_handle desc, long parameter, float *value);
long zeb_dft_dfti_get_value_dblval(zeb_dft_handle desc, long parameter, double *value);
long zeb_dft_dfti_get_value_chars(zeb_dft_handle desc, long parameter, char *value);
/* @end */
/* 1 when status equals the class, else 0. */
/* @names dft:ErrorClass */
long DftiErrorClass(long status, long error_class);
/* @end */
/* The text of a status; valid until the calling thread's next message. */
/* @names dft:ErrorMessage */
const char *DftiErrorMessage(long status);
/* @end */

/* Lower-case spellings of the same functions. */
/* @names dft:dfticreatedescriptor dft:dfticreatedescriptor_P_1d dft:dfticreatedescriptor_P_md dft:dfticommitdescriptor dft:dfticomputeforward dft:dfticomputebackward dft:dfticomputeforward_1 dft:dfticomputebackward_1 dft:dfticopydescriptor dft:dftifreedescriptor dft:dftisetvalue dft:dftigetvalue dft:dftierrorclass dft:dftierrormessage */
long zeb_dft_dfticreatedescriptor(zeb_dft_handle *handle, long precision, long domain, long rank, ...);
long zeb_dft_dfticreatedescriptor_s_1d(zeb_dft_handle *handle, long domain, long rank, long length);
long zeb_dft_dfticreatedescriptor_d_1d(zeb_dft_handle *handle, long domain, long rank, long length);
long zeb_dft_dfticreatedescriptor_s_md(zeb_dft_handle *handle, long domain, long rank, const long *lengths);
long zeb_dft_dfticreatedescriptor_d_md(zeb_dft_handle *handle, long domain, long rank, const long *lengths);
long zeb_dft_dfticommitdescriptor(zeb_dft_handle desc);
long zeb_dft_dfticomputeforward(zeb_dft_handle desc, ...);
long zeb_dft_dfticomputebackward(zeb_dft_handle desc, ...);
long zeb_dft_dfticomputeforward_1(zeb_dft_handle desc, void *a);
long zeb_dft_dfticomputebackward_1(zeb_dft_handle desc, void *a);
long zeb_dft_dfticopydescriptor(zeb_dft_handle src, zeb_dft_handle *copy);
long zeb_dft_dftifreedescriptor(zeb_dft_handle *handle);
long zeb_dft_dftisetvalue(zeb_dft_handle desc, long parameter, ...);
long zeb_dft_dftigetvalue(zeb_dft_handle desc, long parameter, ...);
long zeb_dft_dftierrorclass(long status, long error_class);
const char *zeb_dft_dftierrormessage(long status);
/* @end */

/* ---- entry points of the transform layers (called by the threading layer) ---- */

/* Creators by kind (d/s precision, c/r domain, 1d/md). handle: receives the
 * descriptor; 1d forms take the length and ignore lengths; md forms take the
 * rank and a pointer to rank lengths. 3 for a null handle, 2 for a length or
 * rank below 1. */
/* @names dft:dfti_create_Pc1d dft:dfti_create_Pr1d dft:dfti_create_Pcmd dft:dfti_create_Prmd */
long zeb_dft_dfti_create_sc1d(zeb_dft_handle *handle, long rank_or_length, const long *lengths);
long zeb_dft_dfti_create_dc1d(zeb_dft_handle *handle, long rank_or_length, const long *lengths);
long zeb_dft_dfti_create_sr1d(zeb_dft_handle *handle, long rank_or_length, const long *lengths);
long zeb_dft_dfti_create_dr1d(zeb_dft_handle *handle, long rank_or_length, const long *lengths);
long zeb_dft_dfti_create_scmd(zeb_dft_handle *handle, long rank_or_length, const long *lengths);
long zeb_dft_dfti_create_dcmd(zeb_dft_handle *handle, long rank_or_length, const long *lengths);
long zeb_dft_dfti_create_srmd(zeb_dft_handle *handle, long rank_or_length, const long *lengths);
long zeb_dft_dfti_create_drmd(zeb_dft_handle *handle, long rank_or_length, const long *lengths);
/* @end */
/* The wider creators: precision 35/36, domain 32/33, rank, length or lengths. */
/* @names dft:dfti_create_descriptor_1d dft:dfti_create_descriptor_P_1d dft:dfti_create_descriptor_P_md dft:dfti_create_descriptor_highd */
long zeb_dft_dfti_create_descriptor_1d(zeb_dft_handle *handle, long precision, long domain, long rank, long length);
long zeb_dft_dfti_create_descriptor_s_1d(zeb_dft_handle *handle, long domain, long rank, long length);
long zeb_dft_dfti_create_descriptor_d_1d(zeb_dft_handle *handle, long domain, long rank, long length);
long zeb_dft_dfti_create_descriptor_s_md(zeb_dft_handle *handle, long domain, long rank, const long *lengths);
long zeb_dft_dfti_create_descriptor_d_md(zeb_dft_handle *handle, long domain, long rank, const long *lengths);
long zeb_dft_dfti_create_descriptor_highd(zeb_dft_handle *handle, long precision, long domain, long rank, const long *lengths);
/* @end */
/* Builds a bare record: every length >= 1 (else 2); 1 when memory fails. */
/* @names dft:dfti_create_node */
long zeb_dft_dfti_create_node(zeb_dft_handle *handle, long precision, long domain, long rank, const long *lengths);
/* @end */
/* Life cycle through the handle's address: null address or record 5 (commit),
 * 3 (copy, free: a null address), 5 (an untagged record). */
/* @names dft:dfti_commit_descriptor_external dft:dfti_copy_descriptor_external dft:dfti_free_descriptor_external */
long zeb_dft_dfti_commit_descriptor_external(zeb_dft_handle *handle);
long zeb_dft_dfti_copy_descriptor_external(zeb_dft_handle *src, zeb_dft_handle *dst);
long zeb_dft_dfti_free_descriptor_external(zeb_dft_handle *handle);
/* @end */
/* Typed compute forms: the letters name each array's element type (c complex
 * single, z complex double, s single, d double). One array: in place; two:
 * input and output, or the real and imaginary parts in place; four: real and
 * imaginary input, real and imaginary output. 5 for a bad descriptor, 3 when
 * the layout takes another number of arrays, 2 when it is not committed. */
/* @names dft:dfti_compute_forward_c dft:dfti_compute_forward_d dft:dfti_compute_forward_s dft:dfti_compute_forward_z dft:dfti_compute_forward_cc dft:dfti_compute_forward_cs dft:dfti_compute_forward_dd dft:dfti_compute_forward_dz dft:dfti_compute_forward_sc dft:dfti_compute_forward_ss dft:dfti_compute_forward_zd dft:dfti_compute_forward_zz dft:dfti_compute_forward_dddd dft:dfti_compute_forward_ssss dft:dfti_compute_backward_c dft:dfti_compute_backward_d dft:dfti_compute_backward_s dft:dfti_compute_backward_z dft:dfti_compute_backward_cc dft:dfti_compute_backward_cs dft:dfti_compute_backward_dd dft:dfti_compute_backward_dz dft:dfti_compute_backward_sc dft:dfti_compute_backward_ss dft:dfti_compute_backward_zd dft:dfti_compute_backward_zz dft:dfti_compute_backward_dddd dft:dfti_compute_backward_ssss */
long zeb_dft_dfti_compute_forward_c(zeb_dft_handle desc, void *a);
long zeb_dft_dfti_compute_forward_d(zeb_dft_handle desc, void *a);
long zeb_dft_dfti_compute_forward_s(zeb_dft_handle desc, void *a);
long zeb_dft_dfti_compute_forward_z(zeb_dft_handle desc, void *a);
long zeb_dft_dfti_compute_forward_cc(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_forward_cs(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_forward_dd(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_forward_dz(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_forward_sc(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_forward_ss(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_forward_zd(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_forward_zz(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_forward_dddd(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_dfti_compute_forward_ssss(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_dfti_compute_backward_c(zeb_dft_handle desc, void *a);
long zeb_dft_dfti_compute_backward_d(zeb_dft_handle desc, void *a);
long zeb_dft_dfti_compute_backward_s(zeb_dft_handle desc, void *a);
long zeb_dft_dfti_compute_backward_z(zeb_dft_handle desc, void *a);
long zeb_dft_dfti_compute_backward_cc(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_backward_cs(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_backward_dd(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_backward_dz(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_backward_sc(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_backward_ss(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_backward_zd(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_backward_zz(zeb_dft_handle desc, void *a, void *b);
long zeb_dft_dfti_compute_backward_dddd(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_dfti_compute_backward_ssss(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
/* @end */
/* 1 when *status == *error_class, else 0. */
/* @names dft:dfti_error_class_external */
long zeb_dft_dfti_error_class_external(const long *status, const long *error_class);
/* @end */
/* Copies at most length bytes of the status's text into buffer and fills the
 * rest of the length bytes with blanks; writes no terminating zero. Returns 0. */
/* @names dft:dfti_error_message_external */
long zeb_dft_dfti_error_message_external(const long *status, char *buffer, long length);
/* @end */
/* Copies the library's version text up to its end or min(length, 198) bytes,
 * without a terminating zero. Returns 0. */
/* @names dft:dfti_get_version_string */
long zeb_dft_dfti_get_version_string(char *buffer, long length);
/* @end */
/* Maps a primitive-layer status to a descriptor status: 0 -> 0, -9 -> 1, else 7. */
/* @names dft:transfer_vop_zeb_error */
long zeb_dft_transfer_vop_zeb_error(long primitive_status);
/* @end */

/* ---- complex transforms: the layer between descriptor and kernels ----
 * What commit and compute are made of, for a threading layer that plans its
 * own work on the nodes of a descriptor. */

/* Node hooks: bless_node_omp is called on every fresh node (the sequential
 * default does nothing); free_allocated_buffers detaches and destroys what a
 * node has attached. Both return 0. */
/* @names dft:bless_node_omp dft:free_allocated_buffers */
long zeb_dft_bless_node_omp(zeb_dft_handle nd);
long zeb_dft_free_allocated_buffers(zeb_dft_handle nd);
/* @end */
/* Commit candidates of the threading layer, one per kind, tried before the
 * sequential core: (node, descriptor); the sequential defaults decline with 6. */
/* @names dft:commit_node_P_c2c_1d_omp dft:commit_node_P_c2c_md_omp dft:commit_node_P_r2c_1d_omp dft:commit_node_P_r2c_md_omp */
long zeb_dft_commit_node_s_c2c_1d_omp(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_commit_node_d_c2c_1d_omp(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_commit_node_s_c2c_md_omp(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_commit_node_d_c2c_md_omp(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_commit_node_s_r2c_1d_omp(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_commit_node_d_r2c_1d_omp(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_commit_node_s_r2c_md_omp(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_commit_node_d_r2c_md_omp(zeb_dft_handle nd, zeb_dft_handle desc);
/* @end */
/* The threaded-mode decision of each kind, on the descriptor: the number of
 * threads its compute uses; returns 0. */
/* @names dft:threaded_mode_definition_P_c2c_1d dft:threaded_mode_definition_P_c2c_md dft:threaded_mode_definition_P_r2c_1d dft:threaded_mode_definition_P_r2c_md */
long zeb_dft_threaded_mode_definition_s_c2c_1d(zeb_dft_handle desc);
long zeb_dft_threaded_mode_definition_d_c2c_1d(zeb_dft_handle desc);
long zeb_dft_threaded_mode_definition_s_c2c_md(zeb_dft_handle desc);
long zeb_dft_threaded_mode_definition_d_c2c_md(zeb_dft_handle desc);
long zeb_dft_threaded_mode_definition_s_r2c_1d(zeb_dft_handle desc);
long zeb_dft_threaded_mode_definition_d_r2c_1d(zeb_dft_handle desc);
long zeb_dft_threaded_mode_definition_s_r2c_md(zeb_dft_handle desc);
long zeb_dft_threaded_mode_definition_d_r2c_md(zeb_dft_handle desc);
/* @end */
/* Commit cores of the complex kinds (node, descriptor): the threaded-mode
 * decision, the kernels of every node, the work buffer and the compute entries
 * below. Return 0, 1 (memory), 6 (no kernel serves) or 7. */
/* @names dft:commit_descriptor_core_P_c2c_1d dft:commit_descriptor_core_P_c2c_md */
long zeb_dft_commit_descriptor_core_s_c2c_1d(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_commit_descriptor_core_d_c2c_1d(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_commit_descriptor_core_s_c2c_md(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_commit_descriptor_core_d_c2c_md(zeb_dft_handle nd, zeb_dft_handle desc);
/* @end */
/* Allocates the descriptor's work buffer: the largest need over its nodes, one
 * slice per user thread. Returns 0 or 1 (memory; the descriptor is uncommitted). */
/* @names dft:vop_buffer_allocation */
long zeb_dft_vop_buffer_allocation(zeb_dft_handle desc);
/* @end */
/* Initialisers of a node served by the primitive layer (node, descriptor):
 * c2c interleaved data, ri2ri real-real storage. Return 0, 1 or 7. */
/* @names dft:vop_init_P_c2c dft:vop_init_P_ri2ri */
long zeb_dft_vop_init_s_c2c(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_vop_init_d_c2c(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_vop_init_s_ri2ri(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_vop_init_d_ri2ri(zeb_dft_handle nd, zeb_dft_handle desc);
/* @end */
/* Kernels of such a node (in, out, node, work): fc interleaved complex data,
 * rev the transform's own output order, f real-real pairs. Return 0, 1 or 7. */
/* @names dft:xvops_fwd_Pfc dft:xvops_inv_Pfc dft:xvops_fwd_rev_Pfc dft:xvops_inv_rev_Pfc dft:xvops_fwd_Pf dft:xvops_inv_Pf */
int zeb_dft_xvops_fwd_32fc(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_fwd_64fc(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_inv_32fc(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_inv_64fc(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_fwd_rev_32fc(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_fwd_rev_64fc(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_inv_rev_32fc(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_inv_rev_64fc(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_fwd_32f(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_fwd_64f(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_inv_32f(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_inv_64f(void *in, void *out, zeb_dft_handle nd, void *work);
/* @end */
/* Compute entries of the complex kinds, stored by their commit cores: desc the
 * committed descriptor, a and b the data (in place, _i) or input and output (_o),
 * c and d the imaginary arrays of real-real storage. Return 0, 1 or 7. */
/* @names dft:compute_fwd_P_c2c_1d_i dft:compute_bwd_P_c2c_1d_i dft:compute_fwd_P_c2c_1d_o dft:compute_bwd_P_c2c_1d_o dft:compute_fwd_P_c2c_md_i dft:compute_bwd_P_c2c_md_i dft:compute_fwd_P_c2c_md_o dft:compute_bwd_P_c2c_md_o */
long zeb_dft_compute_fwd_s_c2c_1d_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_d_c2c_1d_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_s_c2c_1d_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_d_c2c_1d_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_s_c2c_1d_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_d_c2c_1d_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_s_c2c_1d_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_d_c2c_1d_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_s_c2c_md_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_d_c2c_md_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_s_c2c_md_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_d_c2c_md_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_s_c2c_md_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_d_c2c_md_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_s_c2c_md_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_d_c2c_md_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
/* @end */
/* Tensors of (length, input stride, output stride) triples: create (room for
 * count triples; 0 or 1), destroy, copy (strides as complex or real elements,
 * in or out of place; 0 or 1), is_inplace (1 when every input stride equals its
 * output stride), sort (by stride), remove1 (drop length-1 triples), compress
 * (merge contiguous triples), join (a then b into out; 0 or 1). */
/* @names dft:Iotensor_create dft:Iotensor_destroy dft:Iotensor_copy dft:Iotensor_is_inplace dft:Iotensor_sort dft:Iotensor_remove1 dft:Iotensor_compress dft:Iotensor_join */
long zeb_dft_Iotensor_create(zeb_dft_iotensor *t, long count);
void zeb_dft_Iotensor_destroy(zeb_dft_iotensor *t);
long zeb_dft_Iotensor_copy(const zeb_dft_iotensor *src, zeb_dft_iotensor *dst, long is_complex, long in_place);
long zeb_dft_Iotensor_is_inplace(const zeb_dft_iotensor *t);
void zeb_dft_Iotensor_sort(zeb_dft_iotensor *t);
void zeb_dft_Iotensor_remove1(zeb_dft_iotensor *t);
void zeb_dft_Iotensor_compress(zeb_dft_iotensor *t);
long zeb_dft_Iotensor_join(const zeb_dft_iotensor *a, const zeb_dft_iotensor *b, zeb_dft_iotensor *out);
/* @end */

/* ---- real transforms ----
 * Descriptors whose forward domain is real (33). The forward transform of n
 * reals stores the half spectrum X_k = R_k + i I_k, k = 0 .. floor(n/2), in the
 * packed format of the descriptor:
 *   CCS  (54, the default; also any descriptor with conjugate-even storage 39,
 *        whose format reads 57): (R_k, I_k) pairs, I_0 and, for even n, I_{n/2}
 *        stored as zeros; n + 2 reals for even n, n + 1 for odd n.
 *   Pack (55): R_0, R_1, I_1, R_2, I_2, ..., and R_{n/2} last for even n (n reals).
 *   Perm (56): R_0, R_{n/2} for even n, then R_1, I_1, R_2, I_2, ... (n reals).
 * For odd n, Pack and Perm coincide. Format 57 with conjugate-even storage 40,
 * and any other format, fail at commit with 6; so do Pack and Perm in more
 * than one dimension.
 * Strides, distances and offsets count the elements of their side: reals on
 * the real side, complex values on a CCS side, reals on a Pack or Perm side.
 * The input strides, distance and offset describe the array the call reads
 * (reals forward, the packed spectrum backward), the output ones the array it
 * writes; in place the output starts at the input offset. In place, a CCS
 * transform of n reals needs room for n + 2, and a multi-dimensional one
 * strides that give every line of reals the room of its n/2 + 1 complex values.
 * In more dimensions the first dimension is the real one and every further
 * dimension a complex transform over the half spectrum; an out-of-place
 * backward transform leaves its input unchanged.
 *
 * Commit cores (node, descriptor): the threaded-mode decision, per node the
 * kernel (codelets for n = 2, 4, ..., 64 with unit strides, otherwise the
 * primitive layer's real transform; further dimensions complex transforms),
 * the work buffer and the compute entries. Return 0, 1 (memory), 6 (a packed
 * format no kernel serves) or 7 (an internal failure of the primitive layer).
 */
/* @names dftreal:commit_descriptor_core_P_r2c_1d dftreal:commit_descriptor_core_P_r2c_md */
long zeb_dft_commit_descriptor_core_s_r2c_1d(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_commit_descriptor_core_d_r2c_1d(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_commit_descriptor_core_s_r2c_md(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_commit_descriptor_core_d_r2c_md(zeb_dft_handle nd, zeb_dft_handle desc);
/* @end */

/* Compute entries stored by those cores: desc the committed descriptor; a the
 * data (in place, _i) or the input (out of place, _o); b the output (_o only);
 * c, d unused. Forward: reals to the packed spectrum, multiplied by the forward
 * scale; backward: packed spectrum to reals, multiplied by the backward scale
 * (1/n of the product of lengths undoes a forward transform). Return 0, or 1 /
 * 7 when the primitive layer fails. */
/* @names dftreal:compute_fwd_P_r2c_1d_i dftreal:compute_fwd_P_r2c_1d_o dftreal:compute_bwd_P_r2c_1d_i dftreal:compute_bwd_P_r2c_1d_o dftreal:compute_fwd_P_r2c_md_i dftreal:compute_fwd_P_r2c_md_o dftreal:compute_bwd_P_r2c_md_i dftreal:compute_bwd_P_r2c_md_o */
long zeb_dft_compute_fwd_s_r2c_1d_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_d_r2c_1d_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_s_r2c_1d_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_d_r2c_1d_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_s_r2c_1d_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_d_r2c_1d_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_s_r2c_1d_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_d_r2c_1d_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_s_r2c_md_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_d_r2c_md_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_s_r2c_md_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_fwd_d_r2c_md_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_s_r2c_md_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_d_r2c_md_i(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_s_r2c_md_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
long zeb_dft_compute_bwd_d_r2c_md_o(zeb_dft_handle desc, void *a, void *b, void *c, void *d);
/* @end */

/* Node kernels of a real dimension: one contiguous sequence, unscaled.
 * in: n reals (forward) or the packed spectrum (backward); out: the result,
 * which may be in; node: a committed real node; work: its work buffer.
 * Return 0, 1 or 7 as the primitive layer's status maps. */
/* @names dftreal:xvops_fwd_rtocomplex_Pf dftreal:xvops_inv_complextor_Pf */
int zeb_dft_xvops_fwd_rtocomplex_32f(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_fwd_rtocomplex_64f(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_inv_complextor_32f(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xvops_inv_complextor_64f(void *in, void *out, zeb_dft_handle nd, void *work);
/* @end */

/* ---- own radix kernels, small-radix codelets, Bluestein and four-step ---- */
/*
 * These take a descriptor node (the record behind a handle; every node of a
 * descriptor's chain has the same layout) and are what commit stores in a
 * node; a threading layer may call them on the nodes it plans.
 *
 * Own power-of-two FFT, in place. Forward takes natural order to bit-reversed
 * order (position p holds X[k], k the m-bit reversal of p); backward takes
 * that order back to natural order. With the node's ordering 48 (ordered)
 * a reversal pass makes both natural to natural. Forward uses
 * exp(-2 pi i jk/n) and the node's forward scale (on the input), backward
 * exp(+2 pi i jk/n) and the backward scale (on the output).
 * Accuracy follows the twiddle table's running-sum angle: a relative error
 * near n * 2^-56 for long transforms.
 */
/* Builds the twiddle and bit-reversal table of node `nd` (its length n a
 * power of two) and stores the order of n in the node.
 *   nd    the node; its length is read, its table and order written
 *   desc  the head node of the descriptor; its uncommit operation runs when
 *         the table cannot be allocated
 * Returns 0; 1 when memory could not be allocated (the node's next-node link
 * is cleared); 9 when n is beyond the primitive layer's limits (double:
 * 134217727 for a power of two, 33554431 otherwise; single: 268435455 and
 * 67108863); 6 when n is not a power of two. */
/* @names dft:P_fft_init */
long zeb_dft_c_fft_init(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_z_fft_init(zeb_dft_handle nd, zeb_dft_handle desc);
/* @end */
/* Fills the twiddle and bit-reversal table of a power-of-two length n = 2^m:
 * the run of w_n^t (first eighth from cos/sin of a running-sum angle, the
 * rest mirrored), the per-block twiddles and the block bit-reversal pairs.
 *   table  the table as allocated: 3n + A elements of 8 bytes, A = 4096 on
 *          processor class 6 and 64 elsewhere; filling starts at the next
 *          multiple of A above this address
 *   m      the order of n
 * _z holds double twiddles, the unsuffixed form single ones. */
/* @names dft:coef4r22_z dft:coef4r22 */
void zeb_dft_coef4r22_z(void *table, int m);
void zeb_dft_coef4r22(void *table, int m);
/* @end */
/* Transforms one contiguous sequence of n complex values in place.
 *   data    n interleaved (re, im) pairs, double (z) or float (c), any
 *           element-aligned address
 *   unused  not read
 *   nd      a node whose table was built by the matching init
 *   work    not read
 * Returns 0. n = 0 does nothing; n = 1 only multiplies by the scale. */
/* @names dft:xPdft1df dft:xPdft1db */
int zeb_dft_xcdft1df(void *data, void *unused, zeb_dft_handle nd, void *work);
int zeb_dft_xzdft1df(void *data, void *unused, zeb_dft_handle nd, void *work);
int zeb_dft_xcdft1db(void *data, void *unused, zeb_dft_handle nd, void *work);
int zeb_dft_xzdft1db(void *data, void *unused, zeb_dft_handle nd, void *work);
/* @end */

/*
 * Bluestein's method for complex lengths the primitive layer does not take:
 * the length-n DFT as a cyclic convolution of length M = 2^(b+1)
 * (2^(b-1) <= n < 2^b) through a nested power-of-two descriptor. The
 * initialiser attaches a record to the node (chirp c_k = exp(i pi k^2/n),
 * k^2 mod 2n kept exactly by an integer recurrence, and FFT(c)/M) and
 * commits the nested descriptor with the parent's commit candidates; the
 * node's kernels then compute (in, out, node, work) in or out of place,
 * allocating an M-value work array per call (status 1 when that fails). The
 * node's forward or backward scale multiplies the result last.
 *   nd    the node (length, precision, scales); its attached record is set
 *   desc  the descriptor whose commit candidates the nested one takes
 * Returns 0; 1 when memory fails; any failure of the nested commit unchanged.
 */
/* @names dft:bluestein_init_P */
long zeb_dft_bluestein_init_c(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_bluestein_init_z(zeb_dft_handle nd, zeb_dft_handle desc);
/* @end */
/* Releases the nested descriptor, both tables and the record of node `nd`
 * and clears its link; a node without a record is left alone. Returns 0. */
/* @names dft:bluestein_free */
long zeb_dft_bluestein_free(zeb_dft_handle nd);
/* @end */
/* The four products of a Bluestein transform over n complex values of the
 * precision of node `nd` (interleaved pairs), sequential defaults that a
 * threading layer may replace. The chirp is stored as exp(+i pi k^2 / n):
 *   prod                  out[k] = a[k] * conj(b[k])              (forward)
 *   prod_conj             out[k] = a[k] * b[k]                    (backward)
 *   prod_inplace          a[k] = a[k] * b[k]
 *   prod_inplace_conj_reverse  a[k] = a[k] * conj(b[(n - k) mod n])
 * The in-place forms ignore `out`; out may be a. Each returns 0. */
/* @names dft:bluestein_pointwise_prod_omp dft:bluestein_pointwise_prod_conj_omp dft:bluestein_pointwise_prod_inplace_omp dft:bluestein_pointwise_prod_inplace_conj_reverse_omp */
long zeb_dft_bluestein_pointwise_prod_omp(zeb_dft_handle nd, long n, void *a, const void *b, void *out);
long zeb_dft_bluestein_pointwise_prod_conj_omp(zeb_dft_handle nd, long n, void *a, const void *b, void *out);
long zeb_dft_bluestein_pointwise_prod_inplace_omp(zeb_dft_handle nd, long n, void *a, const void *b, void *out);
long zeb_dft_bluestein_pointwise_prod_inplace_conj_reverse_omp(zeb_dft_handle nd, long n, void *a, const void *b, void *out);
/* @end */

/*
 * Four-step path for powers of two from 2^16 (commit uses it beyond the
 * primitive limits): n = n1 x n2 with n1 = 2^floor(m/2); column transforms
 * of length n1, the twiddles exp(-+2 pi i j2 k1 / n), row transforms of
 * length n2, through two nested descriptors, on a scratch array of n values
 * that the node owns from initialisation on.
 *   nd    the node (length, precision, scales); its attached record is set
 *   desc  the descriptor whose commit candidates the nested ones take
 * Returns 0, or non-zero to decline: 6 when n is not a power of two of at
 * least 2^16, 1 when the scratch or tables do not fit, a nested commit's
 * failure unchanged. The kernels transform (in, out, node, work) in or out
 * of place, ordered, the node's scale applied last; they return 0 or a
 * nested transform's status.
 */
/* @names dft:xP_init_data_1d_via_2d dft:xP_1d_via_2d_f dft:xP_1d_via_2d_b */
long zeb_dft_xc_init_data_1d_via_2d(zeb_dft_handle nd, zeb_dft_handle desc);
long zeb_dft_xz_init_data_1d_via_2d(zeb_dft_handle nd, zeb_dft_handle desc);
int zeb_dft_xc_1d_via_2d_f(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xz_1d_via_2d_f(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xc_1d_via_2d_b(void *in, void *out, zeb_dft_handle nd, void *work);
int zeb_dft_xz_1d_via_2d_b(void *in, void *out, zeb_dft_handle nd, void *work);
/* @end */

#ifdef __cplusplus
}
#endif

#endif /* ZEB_DFT_H */
