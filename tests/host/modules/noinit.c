/* SPDX-License-Identifier: MIT */
/* A module, but no add-on: it does not export ZelAddOnInit. */
int answer(void);

int answer(void)
{
    return 42;
}
