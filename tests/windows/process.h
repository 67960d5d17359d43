/* What this process has of the system's. */
#ifndef Q7_TESTS_WINDOWS_PROCESS_H
#define Q7_TESTS_WINDOWS_PROCESS_H

int countThreads(void);

/* The system gives new handles the lowest free value, so leaked ones push this up. (Wine counts no
 * handles.) */
unsigned nextHandleValue(void);

#endif
