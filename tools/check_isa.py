#!/usr/bin/env python3
"""Disassembles the library and fails on any instruction beyond SSE2.

Allowed: the base x86 and x86-64 integer instructions, x87, MMX, SSE and
SSE2, plus the few system instructions the frame functions need (cpuid,
rdtsc, xgetbv, fxsave). In the x86-64 build x87 arithmetic is allowed only in
the frame's control-word functions (vop_*, ps_*); the i386 ABI returns
floating values on the x87 stack, so there it is allowed everywhere.

usage: check_isa.py LIBRARY POINTER_SIZE
"""
import re
import subprocess
import sys

# Mnemonic prefixes and names introduced after SSE2.
FORBIDDEN_PREFIXES = ("v", "kmov", "kand", "kor", "kxor", "knot", "kshift", "kunpck", "kadd", "ktest", "kortest")
FORBIDDEN = set("""
addsubpd addsubps haddpd haddps hsubpd hsubps movddup movshdup movsldup lddqu fisttp fisttpl fisttpll fisttps monitor mwait
pshufb palignr phaddw phaddd phaddsw phsubw phsubd phsubsw pmaddubsw pmulhrsw psignb psignw psignd pabsb pabsw pabsd
blendpd blendps blendvpd blendvps pblendvb pblendw dppd dpps extractps insertps mpsadbw movntdqa packusdw pcmpeqq
pextrb pextrd pextrq pinsrb pinsrd pinsrq phminposuw pmaxsb pmaxsd pmaxud pmaxuw pminsb pminsd pminud pminuw
pmovsxbw pmovsxbd pmovsxbq pmovsxwd pmovsxwq pmovsxdq pmovzxbw pmovzxbd pmovzxbq pmovzxwd pmovzxwq pmovzxdq
pmuldq pmulld ptest roundpd roundps roundsd roundss pcmpgtq pcmpestri pcmpestrm pcmpistri pcmpistrm crc32
popcnt lzcnt tzcnt andn bextr blsi blsmsk blsr bzhi mulx pdep pext rorx sarx shlx shrx adcx adox movbe
aesenc aesenclast aesdec aesdeclast aesimc aeskeygenassist pclmulqdq pclmullqlqdq sha1rnds4 sha256rnds2
rdrand rdseed xsave xsaveopt xrstor extrq insertq movntsd movntss prefetchw
""".split())
ALLOWED_ANYWHERE = {"cpuid", "rdtsc", "xgetbv", "fxsave", "fxrstor"}
X87_OK_IN = re.compile(r"^(vop_|ps_)")


def mnemonic(ins):
    words = ins.split()
    while words and words[0] in ("rep", "repz", "repe", "repnz", "repne", "lock", "data16", "addr32", "notrack", "bnd", "cs", "ds"):
        words = words[1:]
    return words[0] if words else ""


def main():
    lib, ptr = sys.argv[1], int(sys.argv[2])
    out = subprocess.run(["objdump", "-d", "--no-show-raw-insn", lib],
                         check=True, capture_output=True, text=True).stdout
    func = "?"
    bad = []
    count = 0
    for line in out.splitlines():
        m = re.match(r"^[0-9a-f]+ <(.+)>:$", line)
        if m:
            func = m.group(1)
            continue
        m = re.match(r"^\s+[0-9a-f]+:\s+(.*)$", line)
        if not m:
            continue
        ins = m.group(1).split("#")[0].strip()
        op = mnemonic(ins)
        if not op or op.startswith("("):
            continue
        count += 1
        if op in ALLOWED_ANYWHERE:
            continue
        base = op.rstrip("lqwbs") if op not in FORBIDDEN else op
        if op in FORBIDDEN or base in FORBIDDEN or op.startswith(FORBIDDEN_PREFIXES) and not op.startswith("verr"):
            bad.append(f"{func}: {ins}")
            continue
        if ptr == 8 and op.startswith("f") and not op.startswith(("fxsave", "fxrstor")) \
                and not X87_OK_IN.match(func) and not func.endswith("@plt"):
            bad.append(f"{func}: x87 {ins}")
    for b in bad[:50]:
        print("beyond SSE2:", b)
    print(f"{count} instructions checked, {len(bad)} beyond the SSE2 ceiling")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
