/** @file
 * The notes editor for hosts in C, and in every language that can call C.
 *
 * The same interface comes in two libraries: liblumenote-qt opens the editor in windows of the
 * desktop, for hosts with or without Qt of their own; liblumenote, for servers, has no windows: an
 * editor that is shown there is seen by nobody, and waiting for its end fails with error 5.
 *
 * Strings are UTF-8, end with NUL and are copied when they are passed in. Functions that return an
 * int return 0, or the number of an error that `lumenote_last_error` describes; functions that
 * return a pointer return NULL instead. Nothing is thrown, and nothing is printed.
 *
 * All controls belong to one thread, which creates them; on another one every call fails with error
 * 5 and does nothing. With windows it is that of the host's QApplication, if it has one. A control
 * that was destroyed fails with error 5, too, unless a newer one has its address. */
#ifndef LUMENOTE_LUMENOTE_H
#define LUMENOTE_LUMENOTE_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One note and the editor on it. */
typedef struct LumenoteControl LumenoteControl;

/** What went wrong. */
typedef struct LumenoteError {
  int number; /**< 5 a bad argument, property, control or thread, 6 overflow, 7 memory, 13 not a
                 number, 51 internal, 53, 61, 70, 75, 76 files and paths, 380 not RTF; 0 after a
                 success */
  const char* member; /**< the control's member concerned ("pCouleurFen"), or "" */
  const char* text;   /**< in French, for the user */
} LumenoteError;

/** How this thread's last call went. Valid until the thread's next call; never NULL. */
const LumenoteError* lumenote_last_error(void);

/** The library's version: "0.1.0". */
const char* lumenote_version(void);

/** A control without a note, to be given back to `lumenote_destroy`. Needs no display yet. */
LumenoteControl* lumenote_create(void);

/** Closes an open editor as its user would, who may be asked whether to save; an edited note that
 * nobody can read any more becomes a rescue copy. Does nothing with NULL. */
void lumenote_destroy(LumenoteControl* control);

/** Writes a property:
 *  - "pStrOrchm": the note itself, RTF or text, or the drive-letter path of its file (see
 *    `lumenote_drive_path`); "NoteText" and "NotePath" say which of the two it is;
 *  - "pCouleurFen": the window's ground, 0xBBGGRR as a decimal number; required, "-1" is the
 *    desktop's own colour;
 *  - "pTitreFenêtre": the window's title;
 *  - "pTitreCadre": the title of the frame around the note;
 *  - "pNomAppli": the host's name, under which paragraph styles are kept;
 *  - "pSScléReg": the name under which the window's place is kept;
 *  - "pChmAppli": the drive-letter path of the host's program; the correction list for scanned text
 *    lies beside it;
 *  - "pAttribut": "readonly" or "lectureseule" makes a note in a string read-only: its user can
 *    write, but is told on closing that the changes are given up; they come back to the host all
 *    the same. A note in a file is read-only as its file is;
 *  - "pModelWord": the path of the template for an external word processor.
 *
 * What is written while the editor is open is for the next opening. A value that is not UTF-8 fails
 * with error 5 and leaves the property as it was. */
int lumenote_set(LumenoteControl* control, const char* property, const char* value);

/** Reads "pStrOrchm", the one property that can be read: closes the editor if it is open, and
 * returns the note, or its path; "" if its user has deleted the document. Valid until the thread's
 * next call that returns a text. */
const char* lumenote_get(LumenoteControl* control, const char* property);

/** Opens the editor, or brings an open one to the front. With `wait` other than 0 it returns when
 * the editor has closed, and dispatches the events of all windows meanwhile; else it returns at
 * once, and the host goes on to dispatch events, or calls `lumenote_pump`. That a note's file
 * cannot be read is no error here: a box tells the user, until then the call does not return, and
 * the note stays as it is. A file that is missing in a folder that exists is a new note. */
int lumenote_show(LumenoteControl* control, int wait);

/** From now on `handler` is called with `data` each time an editor of the control has closed, for
 * whatever reason; it may call every function, even destroy the control. NULL for none. */
int lumenote_closed(LumenoteControl* control, void (*handler)(LumenoteControl* control, void* data),
                    void* data);

/** Editors opened from now on stay above that window of the host's: an X window's number; 0 for
 * none. */
int lumenote_host_window(LumenoteControl* control, uintptr_t window);

/** Brings the recovery copy of an edited note up to date at once, for a host that must end now. */
int lumenote_keep_unsaved(LumenoteControl* control);

/** Dispatches the events of the editors' windows, and waits for them for up to that many
 * milliseconds if there are none; 0 does not wait. For hosts whose own loop knows nothing of them;
 * call it every 10 to 50 milliseconds. */
int lumenote_pump(int milliseconds);

/** The drive-letter path ("Z:\home\iris\orchis.rtf") that controls use for a path of the system.
 * Valid until the thread's next call that returns a text. */
const char* lumenote_drive_path(const char* native);
/** The system's path of a drive-letter path. Valid as long. */
const char* lumenote_native_path(const char* drive);

/** A note in another format, without a control. `bytes` are those of a note's file; `from` is
 * "rtf", "text" or "html", NULL finds out which of the first two; `to` is one of the three. The
 * length goes to `*length` unless that is NULL. Any thread; valid until its next call that returns
 * a text. */
const char* lumenote_convert(const char* bytes, size_t size, const char* from, const char* to,
                             size_t* length);

#ifdef __cplusplus
}
#endif

#endif
