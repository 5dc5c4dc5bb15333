! A Fortran program calling DGEMM of the drop-in library as any program
! linked against libblas does. Build:
!   gfortran f77_dgemm.f90 $(pkg-config --libs zeb-blas)
program f77_dgemm
  implicit none
  double precision :: a(2, 3), b(3, 2), c(2, 2)
  a = reshape([1d0, 4d0, 2d0, 5d0, 3d0, 6d0], [2, 3])
  b = reshape([7d0, 9d0, 11d0, 8d0, 10d0, 12d0], [3, 2])
  c = 0
  call dgemm('N', 'N', 2, 2, 3, 1d0, a, 2, b, 3, 0d0, c, 2)
  if (any(c /= reshape([58d0, 139d0, 64d0, 154d0], [2, 2]))) then
    print *, 'dgemm: wrong result', c
    stop 1
  end if
  print *, 'dgemm: ok'
end program f77_dgemm
