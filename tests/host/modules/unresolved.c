/* SPDX-License-Identifier: MIT */
/* Needs a function that no library has. */
void ZelAddOnInit(void);
void functionOfNoLibrary(void);

void ZelAddOnInit(void)
{
    functionOfNoLibrary();
}
